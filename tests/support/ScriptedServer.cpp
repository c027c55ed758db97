#include "support/ScriptedServer.h"

#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

#include <sys/socket.h>

#include <algorithm>
#include <utility>

namespace kavor {

struct ScriptedServer::Connection : QObject {
    QTcpSocket* socket = nullptr;
    QByteArray input;
    int number = 0;
    bool busy = false;
    ScriptedAnswer answer;
    qsizetype sent = 0;
    QTimer step;
};

QByteArray ScriptedRequest::header(const QByteArray& lowerCaseName) const {
    for (const auto& [name, value] : headers) {
        if (name == lowerCaseName)
            return value;
    }
    return {};
}

bool ScriptedRequest::hasHeader(const QByteArray& lowerCaseName) const {
    return std::any_of(headers.begin(), headers.end(),
                       [&](const auto& header) { return header.first == lowerCaseName; });
}

ScriptedAnswer ScriptedAnswer::json(const QByteArray& body, int status) {
    return bytes(body, "application/json", status);
}

ScriptedAnswer ScriptedAnswer::bytes(const QByteArray& body, const QByteArray& contentType, int status) {
    ScriptedAnswer answer;
    answer.status = status;
    answer.body = body;
    answer.headers = {{"Content-Type", contentType}};
    return answer;
}

ScriptedAnswer ScriptedAnswer::empty(int status) {
    ScriptedAnswer answer;
    answer.status = status;
    return answer;
}

ScriptedAnswer ScriptedAnswer::redirect(const QByteArray& location, int status) {
    ScriptedAnswer answer;
    answer.status = status;
    answer.headers = {{"Location", location}};
    return answer;
}

ScriptedAnswer ScriptedAnswer::of(Kind kind) {
    ScriptedAnswer answer;
    answer.kind = kind;
    return answer;
}

ScriptedAnswer ScriptedAnswer::cut(const QByteArray& body, qsizetype cutAfter, Framing framing) {
    ScriptedAnswer answer = json(body);
    answer.cutAfter = cutAfter;
    answer.framing = framing;
    return answer;
}

ScriptedAnswer ScriptedAnswer::slow(const QByteArray& body, int bytesPerStep, int stepMilliseconds) {
    ScriptedAnswer answer = json(body);
    answer.bytesPerStep = bytesPerStep;
    answer.stepMilliseconds = stepMilliseconds;
    return answer;
}

ScriptedServer::ScriptedServer(QObject* parent)
    : QObject(parent) {
    connect(&server_, &QTcpServer::newConnection, this, &ScriptedServer::accept);
    if (!server_.listen(QHostAddress::LocalHost))
        qFatal("the test server cannot listen on the loopback");
}

ScriptedServer::~ScriptedServer() {
    shutDown();
}

QString ScriptedServer::address(const QString& path) const {
    return QStringLiteral("http://127.0.0.1:%1").arg(server_.serverPort()) + path;
}

void ScriptedServer::answer(const QByteArray& path, const ScriptedAnswer& answer) {
    standing_[path] = answer;
}

void ScriptedServer::then(const QByteArray& path, const ScriptedAnswer& answer) {
    queued_[path].append(answer);
}

QList<ScriptedRequest> ScriptedServer::requestsTo(const QByteArray& path) const {
    QList<ScriptedRequest> found;
    std::copy_if(requests_.begin(), requests_.end(), std::back_inserter(found),
                 [&](const ScriptedRequest& request) { return request.path == path; });
    return found;
}

void ScriptedServer::release() {
    holding_ = false;
    for (const auto& goOn : std::exchange(held_, {}))
        goOn();
}

void ScriptedServer::shutDown() {
    server_.close();
    held_.clear();
    for (Connection* connection : connections_.values()) {
        connection->socket->disconnect(this);
        connection->socket->abort();
        delete connection;
    }
    connections_.clear();
}

void ScriptedServer::accept() {
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        auto* connection = new Connection;
        connection->socket = socket;
        connection->number = ++accepted_;
        connection->step.setSingleShot(true);
        socket->setParent(connection);
        connections_[socket] = connection;
        connect(&connection->step, &QTimer::timeout, this, [this, connection] { sendStep(*connection); });
        connect(socket, &QTcpSocket::readyRead, this, [this, connection] { readFrom(*connection); });
        connect(socket, &QTcpSocket::disconnected, this, [this, connection] { drop(*connection); });
        connect(socket, &QTcpSocket::bytesWritten, this, [this, connection] {
            if (connection->busy && connection->answer.kind == ScriptedAnswer::Kind::EndlessBody)
                sendEndless(*connection);
        });
    }
}

void ScriptedServer::readFrom(Connection& connection) {
    connection.input += connection.socket->readAll();
    if (!connection.busy)
        takeRequest(connection);
}

// Takes one whole request off the input, records it and answers it, or leaves the input as it is.
bool ScriptedServer::takeRequest(Connection& connection) {
    const qsizetype headEnd = connection.input.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    ScriptedRequest request;
    const QList<QByteArray> lines = connection.input.left(headEnd).split('\n');
    const QList<QByteArray> start = lines.first().trimmed().split(' ');
    request.method = start.value(0);
    request.target = start.value(1);
    request.path = request.target.split('?').first();
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.append({line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed()});
    }
    const qsizetype length = request.header("content-length").toLongLong();
    if (connection.input.size() < headEnd + 4 + length)
        return false;
    request.body = connection.input.mid(headEnd + 4, length);
    request.connection = connection.number;
    connection.input.remove(0, headEnd + 4 + length);
    connection.busy = true;
    mostInFlight_ = std::max(mostInFlight_, ++inFlight_);
    requests_.append(request);
    if (holding_)
        held_.append([this, held = QPointer<Connection>(&connection), request] {
            if (held)
                play(*held, pick(request));
        });
    else
        play(connection, pick(request));
    emit requestArrived();
    return true;
}

ScriptedAnswer ScriptedServer::pick(const ScriptedRequest& request) {
    if (auto queue = queued_.find(request.path); queue != queued_.end() && !queue->isEmpty())
        return queue->takeFirst();
    if (const auto found = standing_.constFind(request.path); found != standing_.constEnd())
        return *found;
    return handler_ ? handler_(request) : ScriptedAnswer::empty(404);
}

void ScriptedServer::play(Connection& connection, const ScriptedAnswer& answer) {
    using Kind = ScriptedAnswer::Kind;
    using Framing = ScriptedAnswer::Framing;
    connection.answer = answer;
    connection.sent = 0;
    QTcpSocket* socket = connection.socket;
    switch (answer.kind) {
    case Kind::Silence:
        return;
    case Kind::CloseWithoutAnswer:
        socket->disconnectFromHost();
        return;
    case Kind::Reset:
        connection.answer.resetAtCut = true;
        finish(connection);
        return;
    case Kind::EndlessBody:
        connection.answer.framing = Framing::Chunked;
        break;
    case Kind::Answer:
        break;
    }
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\n";
    for (const auto& [name, value] : answer.headers)
        head += name + ": " + value + "\r\n";
    if (connection.answer.framing == Framing::Chunked)
        head += "Transfer-Encoding: chunked\r\n";
    else if (connection.answer.framing == Framing::ContentLength && answer.status != 204)
        head += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
    if (answer.closeAfterwards || connection.answer.framing == Framing::UntilClose)
        head += "Connection: close\r\n";
    socket->write(head + "\r\n");
    if (answer.kind == Kind::EndlessBody)
        sendEndless(connection);
    else
        sendStep(connection);
}

void ScriptedServer::sendStep(Connection& connection) {
    const ScriptedAnswer& answer = connection.answer;
    const qsizetype whole =
        answer.cutAfter < 0 ? answer.body.size() : std::min(answer.cutAfter, answer.body.size());
    const qsizetype rest = whole - connection.sent;
    const qsizetype part = answer.bytesPerStep > 0 ? std::min<qsizetype>(answer.bytesPerStep, rest) : rest;
    const QByteArray piece = answer.body.mid(connection.sent, part);
    if (!piece.isEmpty() && answer.framing == ScriptedAnswer::Framing::Chunked)
        connection.socket->write(QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n");
    else
        connection.socket->write(piece);
    connection.sent += part;
    if (connection.sent < whole)
        connection.step.start(answer.stepMilliseconds);
    else
        finish(connection);
}

void ScriptedServer::sendEndless(Connection& connection) {
    static const QByteArray piece(65536, 'x');
    while (connection.socket->state() == QAbstractSocket::ConnectedState &&
           connection.socket->bytesToWrite() < 4 * piece.size())
        connection.socket->write("10000\r\n" + piece + "\r\n");
}

void ScriptedServer::finish(Connection& connection) {
    const ScriptedAnswer& answer = connection.answer;
    QTcpSocket* socket = connection.socket;
    const bool cut = answer.cutAfter >= 0;
    if (answer.resetAtCut) {
        socket->flush();
        const linger atOnce{1, 0};
        ::setsockopt(int(socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        socket->abort();
        return;
    }
    if (!cut && answer.framing == ScriptedAnswer::Framing::Chunked)
        socket->write("0\r\n\r\n");
    if (cut || answer.closeAfterwards || answer.framing == ScriptedAnswer::Framing::UntilClose) {
        socket->disconnectFromHost();
        return;
    }
    connection.busy = false;
    --inFlight_;
    takeRequest(connection);
}

void ScriptedServer::drop(Connection& connection) {
    if (connection.busy)
        --inFlight_;
    connection.busy = false;
    connection.step.stop();
    connections_.remove(connection.socket);
    connection.deleteLater();
}

} // namespace kavor
