#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QTcpServer>
#include <QUrl>

#include <functional>

class QTcpSocket;

namespace kavor {

// One request as it arrived: the target is path and query as sent, header names are in lower case.
struct ScriptedRequest {
    QByteArray method;
    QByteArray target;
    QByteArray path;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
    int connection = 0; // counts the server's connections from 1

    [[nodiscard]] QByteArray header(const QByteArray& lowerCaseName) const;
    [[nodiscard]] bool hasHeader(const QByteArray& lowerCaseName) const;
};

// What the server does with one request.
struct ScriptedAnswer {
    enum class Framing { ContentLength, Chunked, UntilClose };
    enum class Kind {
        Answer,             // status, headers, body
        CloseWithoutAnswer, // an orderly end of the connection before the first byte
        Reset,              // the connection is torn down (RST) before the first byte
        Silence,            // nothing at all; the connection stays open
        EndlessBody,        // a chunked body that never ends
    };

    int status = 200;
    QByteArray body;
    QList<QPair<QByteArray, QByteArray>> headers;
    Kind kind = Kind::Answer;
    Framing framing = Framing::ContentLength;
    qsizetype cutAfter = -1; // closes after so many body bytes; -1 sends the whole body
    bool resetAtCut = false; // the cut is a reset instead of an orderly close
    int bytesPerStep = 0;    // 0 sends the body at once, otherwise so many bytes at each step
    int stepMilliseconds = 1;
    bool closeAfterwards = false; // closes the connection after a whole answer

    static ScriptedAnswer json(const QByteArray& body, int status = 200);
    static ScriptedAnswer bytes(const QByteArray& body, const QByteArray& contentType, int status = 200);
    static ScriptedAnswer empty(int status);
    static ScriptedAnswer redirect(const QByteArray& location, int status = 302);
    static ScriptedAnswer of(Kind kind);
    static ScriptedAnswer cut(const QByteArray& body, qsizetype cutAfter,
                              Framing framing = Framing::ContentLength);
    static ScriptedAnswer slow(const QByteArray& body, int bytesPerStep, int stepMilliseconds);
};

// A small HTTP/1.1 server on the loopback that answers by script and misbehaves on command. It lives on the
// event loop of the thread that made it. A request without a script gets 404.
class ScriptedServer : public QObject {
    Q_OBJECT
public:
    using Handler = std::function<ScriptedAnswer(const ScriptedRequest&)>;

    explicit ScriptedServer(QObject* parent = nullptr);
    ~ScriptedServer() override;

    // "http://127.0.0.1:PORT" followed by the path, which begins with a slash.
    [[nodiscard]] QString address(const QString& path = {}) const;
    [[nodiscard]] QUrl url(const QString& path) const { return QUrl(address(path)); }
    [[nodiscard]] quint16 port() const { return server_.serverPort(); }

    // The answer that a path always gets; answers given one by one with `then` go first.
    void answer(const QByteArray& path, const ScriptedAnswer& answer);
    void then(const QByteArray& path, const ScriptedAnswer& answer);
    // Decides for requests to paths that have no script.
    void setHandler(Handler handler) { handler_ = std::move(handler); }

    // While held, requests are recorded and wait; release answers them in their order of arrival.
    void hold() { holding_ = true; }
    void release();
    [[nodiscard]] int waiting() const { return int(held_.size()); }

    [[nodiscard]] const QList<ScriptedRequest>& requests() const { return requests_; }
    [[nodiscard]] QList<ScriptedRequest> requestsTo(const QByteArray& path) const;
    // The largest number of requests that were without a whole answer at one time.
    [[nodiscard]] int mostInFlight() const { return mostInFlight_; }
    // Stops listening and drops all connections: later requests are refused.
    void shutDown();

signals:
    void requestArrived();

private:
    struct Connection;

    void accept();
    void readFrom(Connection& connection);
    bool takeRequest(Connection& connection);
    ScriptedAnswer pick(const ScriptedRequest& request);
    void play(Connection& connection, const ScriptedAnswer& answer);
    void sendStep(Connection& connection);
    void sendEndless(Connection& connection);
    void finish(Connection& connection);
    void drop(Connection& connection);

    QTcpServer server_;
    QMap<QTcpSocket*, Connection*> connections_;
    QMap<QByteArray, QList<ScriptedAnswer>> queued_;
    QMap<QByteArray, ScriptedAnswer> standing_;
    Handler handler_;
    QList<ScriptedRequest> requests_;
    QList<std::function<void()>> held_;
    bool holding_ = false;
    int inFlight_ = 0;
    int mostInFlight_ = 0;
    int accepted_ = 0;
};

} // namespace kavor
