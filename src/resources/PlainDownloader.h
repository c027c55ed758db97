#pragma once

#include "http/HttpConnections.h"
#include "http/HttpExchange.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QUrl>

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace kavor {

// How a plain download ended. With a transport error there may still be a status, but the body is never
// whole.
struct DownloadResult {
    std::optional<QString> transportError;
    std::optional<int> status; // absent when no HTTP answer came
    QByteArray body;
    // Whether the server announced the length. Without it, a connection that breaks off looks like the end.
    bool lengthIsVerified = false;

    // Whether a whole body came with status 200.
    [[nodiscard]] bool isComplete() const { return !transportError && status == 200; }
};

// GETs of resources, fonts and documents over HTTP/1.1. They carry neither a token nor any other header of
// the service requests, keep no cookies, and follow redirects that do not leave TLS. Main thread only.
class PlainDownloader : public QObject {
    Q_OBJECT
public:
    using Callback = std::function<void(const DownloadResult&)>;
    static constexpr qint64 defaultSizeLimit = 64LL * 1024 * 1024;
    static constexpr int defaultTimeout = 60'000;
    // Downloads wait for others of their own lane only, in their order.
    enum class Lane {
        Wanted, // fonts and documents
        OnShow, // pictures that a screen shows
        Ahead,  // resources that somebody waits for ahead of need
        Background,
    };
    // How many downloads each lane holds at once.
    static constexpr std::array<int, 4> laneWidths{6, 6, 5, 5};
    using Ticket = quint64;

    // The timeout counts milliseconds without a byte.
    explicit PlainDownloader(QObject* parent = nullptr, int timeoutMilliseconds = defaultTimeout);
    ~PlainDownloader() override;

    // Fetches an http or https address. A body above the size limit (bytes) and one that is cut short are
    // transport errors. The callback runs later, never inside this call; it is dropped with its context.
    Ticket get(const QUrl& url, QObject* context, Callback callback, qint64 sizeLimit = defaultSizeLimit,
               Lane lane = Lane::Wanted);
    // A download that still waits for its turn goes over to another lane.
    void hasten(Ticket ticket, Lane lane);

    // Whether a download of this address waits or is under way.
    [[nodiscard]] bool isFetching(const QUrl& url) const { return running_.contains(url); }

private:
    struct Job {
        Ticket ticket = 0;
        QUrl url;
        qint64 sizeLimit = 0;
        Lane lane = Lane::Wanted;
        Callback callback;
    };
    using JobPointer = std::shared_ptr<Job>;
    struct Queue {
        std::deque<JobPointer> waiting;
        int running = 0;
    };

    Queue& queueOf(Lane lane) { return lanes_[std::size_t(lane)]; }
    void enter(const JobPointer& job);
    void startNext(Lane lane);
    void send(const JobPointer& job);
    void finish(const JobPointer& job, const HttpAnswer& answer);

    HttpConnections connections_{this};
    std::array<Queue, laneWidths.size()> lanes_;
    QHash<QUrl, int> running_;
    int timeoutMilliseconds_;
    Ticket lastTicket_ = 0;
};

} // namespace kavor
