#include "device/UrlOpener.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace kavor {

// The address may come from the server: it must not name a program or a file of the device.
bool SystemUrlOpener::openExternally(const QString& url) {
    const QUrl address(url, QUrl::StrictMode);
    static const QStringList allowed{QStringLiteral("http"), QStringLiteral("https"),
                                     QStringLiteral("mailto"), QStringLiteral("tel")};
    return address.isValid() && allowed.contains(address.scheme()) && QDesktopServices::openUrl(address);
}

} // namespace kavor
