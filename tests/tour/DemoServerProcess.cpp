#include "tour/DemoServerProcess.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>

#include <stdexcept>

namespace kavor {

DemoServerProcess::DemoServerProcess(const QString& folder, const QStringList& moreArguments)
    : configuration_(folder + QStringLiteral("/NetworkConfiguration.plist")) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kavor-demo-server"),
                   QStringList{QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--data"),
                               folder, QStringLiteral("--quiet"), QStringLiteral("--stop-with-parent"),
                               QStringLiteral("--write-configuration"), configuration_} +
                       moreArguments);
    const QString first = nextLine();
    url_ = first.mid(first.indexOf(QLatin1String("http://")));
    const QString rights = nextLine();
    const auto match =
        QRegularExpression(QStringLiteral("Cuenta:\\s+(\\S+)\\s+Contraseña:\\s+(\\S+)")).match(rights);
    if (!url_.startsWith(QLatin1String("http://127.0.0.1:")) || !match.hasMatch())
        throw std::runtime_error(("the demonstration server said: " + first + " / " + rights).toStdString());
    account_ = match.captured(1);
    password_ = match.captured(2);
}

DemoServerProcess::~DemoServerProcess() {
    process_.terminate();
    if (!process_.waitForFinished(5000))
        process_.kill();
    process_.waitForFinished(2000);
}

QString DemoServerProcess::nextLine() {
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(20000))
            throw std::runtime_error("the demonstration server did not start");
    }
    return QString::fromUtf8(process_.readLine()).trimmed();
}

namespace {

QByteArray bodyOf(QNetworkReply* reply) {
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    if (reply->error() != QNetworkReply::NoError)
        throw std::runtime_error((reply->url().toString() + ": " + reply->errorString()).toStdString());
    return reply->readAll();
}

} // namespace

QByteArray DemoServerProcess::get(const QString& pathOrUrl) const {
    QNetworkAccessManager network;
    const QUrl url(pathOrUrl.startsWith(QLatin1String("http")) ? pathOrUrl : url_ + pathOrUrl);
    return bodyOf(network.get(QNetworkRequest(url)));
}

void DemoServerProcess::post(const QString& path, const QByteArray& json) const {
    QNetworkAccessManager network;
    QNetworkRequest request(QUrl(url_ + path));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    bodyOf(network.post(request, json));
}

} // namespace kavor
