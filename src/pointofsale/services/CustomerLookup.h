#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace kavor {

class AlertPresenter;
class ServiceOperations;
class UrlOpener;
class VeiledRun;

// What the user is told when no customer comes of a code.
struct CustomerLookupTexts {
    QString offlineTitle = QStringLiteral("Error");
    QString offlineText = QStringLiteral("No hay conexión a internet.");
    QString noCodeTitle = QStringLiteral("Atención");
    QString noCodeText; // empty: nobody can search without a code
    QString nobodyTitle = QStringLiteral("Información");
    QString nobodyText =
        QStringLiteral("No se ha encontrado ningún cliente asociado al código TEVO introducido.\n"
                       "Deberás completar la información para este Punto de Venta en esta pantalla.");
    QString nobodyButton = QStringLiteral("Ok");
    QString failureTitle = QStringLiteral("Incidencia");
};

// Asks the server for the customer of a code, behind a veil, and tells what comes of it.
class CustomerLookup : public QObject {
    Q_OBJECT
public:
    // The first customer of the code, or none when the server knows nobody.
    using Answered = std::function<void(const std::optional<Customer>&)>;

    // What it works with outlives it.
    CustomerLookup(ServiceOperations& network, AlertPresenter& alerts, UrlOpener& urls, VeiledRun& wait,
                   CustomerLookupTexts texts, QObject* parent = nullptr);

    // Offline, after a failure, and when the user leaves the veil, nothing is answered.
    void search(const QString& code, Answered answered);

private:
    void finish(const std::optional<Customer>& found, const Answered& answered);

    ServiceOperations& network_;
    AlertPresenter& alerts_;
    UrlOpener& urls_;
    VeiledRun& wait_;
    CustomerLookupTexts texts_;
};

} // namespace kavor
