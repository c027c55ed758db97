#include "interaction/OpenLink.h"

#include "device/UrlOpener.h"
#include "interaction/AlertPresenter.h"

namespace kavor {

void openLink(UrlOpener& urls, AlertPresenter& alerts, const QString& url) {
    if (!urls.openExternally(url))
        alerts.inform(QStringLiteral("Atención"),
                      QStringLiteral("No se ha podido abrir el enlace:\n%1").arg(url));
}

} // namespace kavor
