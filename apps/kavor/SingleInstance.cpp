#include "kavor/SingleInstance.h"

#include "session/StateFile.h"

#include <QCryptographicHash>
#include <QLocalSocket>

namespace kavor {

namespace {

constexpr int answerLimit = 2000; // milliseconds
constexpr qint64 longestMessage = qint64(64) * 1024;

QString nameFor(const QString& folder) {
    const auto digest = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("kavor-") + QString::fromLatin1(digest.left(24));
}

} // namespace

SingleInstance::SingleInstance(const std::filesystem::path& documents, QObject* parent)
    : QObject(parent)
    , name_(nameFor(QString::fromStdString(documents.string())))
    , lock_(QString::fromStdString((documents / std::string(state_file::clientLock)).string())) {
    lock_.setStaleLockTime(0); // the owner's process decides, not the age
    first_ = lock_.tryLock(0);
    if (!first_)
        return;
    QLocalServer::removeServer(name_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::receive);
    server_.listen(name_);
}

bool SingleInstance::handOver(const QStringList& urls) const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(answerLimit))
        return false;
    socket.write(urls.join(QLatin1Char('\n')).toUtf8() + '\n');
    socket.flush();
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(answerLimit);
}

void SingleInstance::receive() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            const QString message = QString::fromUtf8(socket->read(longestMessage));
            emit startedAgain(message.split(QLatin1Char('\n'), Qt::SkipEmptyParts));
            socket->deleteLater();
        });
    }
}

} // namespace kavor
