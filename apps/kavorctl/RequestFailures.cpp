#include "RequestFailures.h"

namespace kavor::ctl {

CommandFailure requestFailure(const QString& title, const RequestFailure& failure) {
    const RequestError& error = failure.error;
    QString text = error.localizedDescription;
    if (error.updateNeeded)
        text = error.updateNeeded->errorMessage;
    else if (failure.messages && !failure.messages->isEmpty())
        text = failure.messages->join(QLatin1Char('\n'));
    // A status says something only where it is what failed: a body can be broken under a 200 too.
    const QString reason = error.kind == RequestError::Kind::Status
                               ? QStringLiteral("HTTP %1").arg(error.status)
                               : error.localizedDescription;
    QString line = title + QStringLiteral(": ") + text + QStringLiteral(" (") + reason + QLatin1Char(')');
    if (error.updateNeeded && !error.updateNeeded->updateLink.isEmpty())
        line += QLatin1Char('\n') + error.updateNeeded->updateLink.toString(QUrl::FullyEncoded);
    return {requestFailed, line.toStdString()};
}

} // namespace kavor::ctl
