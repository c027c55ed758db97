#include "device/PushRegistration.h"

#include <QMetaObject>

namespace kavor {

void NoPushRegistration::registerForRemoteNotifications() {
    QMetaObject::invokeMethod(
        this, [this] { emit failed(QStringLiteral("this device has no push service")); },
        Qt::QueuedConnection);
}

} // namespace kavor
