#pragma once

#include "documents/OrderRequestType.h"

#include <QString>

namespace kavor {

// A text for each type of request.
struct TextOfRequest {
    QString print;
    QString preview;
    QString cloud;

    [[nodiscard]] const QString& of(OrderRequestType type) const {
        switch (type) {
        case OrderRequestType::sendToPrint:
            return print;
        case OrderRequestType::sendPreview:
            return preview;
        case OrderRequestType::saveCloud:
            break;
        }
        return cloud;
    }
};

// What the user reads on the road of an order, in the words that most sections share. A section changes what
// it says otherwise.
struct OrderTexts {
    // The title of the sentences of the check, and of the question about the warnings.
    QString incompleteTitle = QStringLiteral("Pedido incompleto");
    QString warningsTitle = QStringLiteral("Atención");
    // What the veil says.
    TextOfRequest waiting{QStringLiteral("Enviando el pedido…"),
                          QStringLiteral("Preparando la vista previa…"),
                          QStringLiteral("Guardando el pedido en la nube…")};
    // The title of what the server says of a failure.
    TextOfRequest failedTitle{QStringLiteral("El pedido no se puede realizar"),
                              QStringLiteral("El pedido no se puede previsualizar"),
                              QStringLiteral("El pedido no se puede sincronizar")};
    // The user waits no longer for an order that may have been made.
    QString left = QStringLiteral("Es posible que el pedido ya se haya realizado; si lo envía de nuevo sin "
                                  "cambiarlo, no se realizará dos veces.");

    // The title of a sent order. Under "Error": an answer without what it is for.
    QString sentTitle = QStringLiteral("Éxito");
    QString noOrder = QStringLiteral("No hay url para ver el pedido realizado. Contacte con soporte.");
    QString noDocument = QStringLiteral("No hay url que previsualizar. Contacte con soporte.");
    QString savedTitle = QStringLiteral("Pedido guardado");
    QString saved = QStringLiteral("El pedido se encuentra guardado en local y sincronizado");
    QString savedLocallyTitle = QStringLiteral("Guardado sólo localmente");
    QString savedLocally =
        QStringLiteral("Su pedido se encuentra guardado en local, pero no se ha podido sincronizar.");

    // One that was sent out of the outbox, where its file could not be removed.
    QString fileStaysTitle = QStringLiteral("Enviado");
    QString fileStays =
        QStringLiteral("El pedido se ha enviado correctamente pero no se ha podido borrar del dispositivo.");

    // An order that could not be sent; %1 is the name of its file.
    QString queuedTitle = QStringLiteral("Sin conexión a internet.");
    QString queued = QStringLiteral("Su pedido ha sido guardado en borradores con el nombre \"%1\".");
    QString waitsAlready =
        QStringLiteral("Su pedido ya está en borradores con el nombre \"%1\", pendiente de envío.");
    QString notQueued = QStringLiteral("Su pedido no se ha podido guardar");
    // A file that could not be written, or written anew where it was the draft's own, and what the veil says
    // meanwhile.
    QString notWrittenTitle = QStringLiteral("Error al guardar pedido.");
    QString notWritten = QStringLiteral("Su pedido no se ha podido guardar");
    QString notUpdated = QStringLiteral("Su pedido no se ha podido guardar");
    QString writing = QStringLiteral("Guardando el pedido…");
};

} // namespace kavor
