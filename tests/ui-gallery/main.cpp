#include "GalleryPaper.h"
#include "interaction/AlertPresenter.h"
#include "ui/Ui.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <cstdio>

namespace {

void runFor(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void presentAlert(kavor::AlertPresenter& presenter, const QString& kind) {
    using Role = kavor::AlertButton::Role;
    kavor::AlertRequest request;
    request.title = QStringLiteral("Atención");
    request.text = QStringLiteral("El pedido tiene cambios sin guardar. ¿Desea eliminar la carta en curso?");
    request.buttons = {{QStringLiteral("Cancelar"), Role::Cancel},
                       {QStringLiteral("Eliminar"), Role::Destructive}};
    if (kind == u"long") {
        request.text = QString();
        for (int rule = 1; rule < 40; ++rule)
            request.text +=
                QStringLiteral("%1. Debe seleccionar al menos un formato para la marca.\n").arg(rule);
        request.buttons = {{QStringLiteral("Aceptar"), Role::Cancel}};
    } else if (kind == u"field") {
        request.text = QStringLiteral("Indique un nombre para guardar el pedido.");
        request.textField = kavor::AlertTextField{QStringLiteral("Nombre"), QStringLiteral("Bar La Ola"), 20};
        request.buttons = {{QStringLiteral("Cancelar"), Role::Cancel},
                           {QStringLiteral("Guardar"), Role::Normal}};
    } else if (kind == u"choices") {
        request.text = QStringLiteral("¿Qué precio quiere usar?");
        request.choices = {QStringLiteral("Precio recomendado"), QStringLiteral("Precio de la zona"),
                           QStringLiteral("Precio anterior")};
        request.buttons = {{QStringLiteral("Cancelar"), Role::Cancel}};
    }
    presenter.present(request);
}

int takeShots(QQuickWindow& window, kavor::AlertPresenter& presenter, const QString& folder) {
    QDir().mkpath(folder);
    const QList<QSize> sizes = {{1024, 768}, {768, 1024}, {390, 844}};
    const QStringList pages = {"basics", "form", "lists",  "pdf",  "empty",
                               "error",  "soon", "picker", "veil", "banner"};
    const QStringList alerts = {"plain", "long", "field", "choices"};
    bool saved = true;
    for (const QSize& size : sizes) {
        window.resize(size);
        auto shoot = [&](const QString& name) {
            runFor(600);
            const QString file = QStringLiteral("%1/%2-%3.png").arg(folder).arg(size.width()).arg(name);
            saved = window.grabWindow().save(file) && saved;
        };
        for (const QString& page : pages) {
            window.setProperty("page", page);
            shoot(page);
        }
        window.setProperty("page", QStringLiteral("basics"));
        for (const QString& alert : alerts) {
            presentAlert(presenter, alert);
            shoot(QStringLiteral("alert-") + alert);
            presenter.answerButton(0);
        }
    }
    return saved ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[]) {
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption shots(QStringLiteral("shots"), QStringLiteral("Write pictures and end."),
                                   QStringLiteral("folder"));
    parser.addOption(shots);
    parser.process(app);

    QQmlApplicationEngine engine;
    kavor::registerUi(engine);
    QTemporaryDir paper;
    kavor::writeGalleryPictures(paper.path());
    kavor::writeGalleryPdf(paper.filePath(QStringLiteral("menu.pdf")));
    kavor::AlertPresenter presenter;
    engine.rootContext()->setContextProperty(QStringLiteral("galleryAlerts"), &presenter);
    engine.rootContext()->setContextProperty(QStringLiteral("galleryFolder"),
                                             QUrl::fromLocalFile(paper.path()));
    engine.load(QUrl(QStringLiteral("qrc:/gallery/Gallery.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    if (parser.isSet(shots))
        return takeShots(*window, presenter, parser.value(shots));
    return QGuiApplication::exec();
}
