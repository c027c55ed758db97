#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

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

    // The timeout counts milliseconds without a byte.
    explicit PlainDownloader(QObject* parent = nullptr, int timeoutMilliseconds = defaultTimeout);
    ~PlainDownloader() override;

    // Fetches an http or https address. A body above the size limit (bytes) and one that is cut short are
    // transport errors. The callback runs later, never inside this call; it is dropped with its context.
    void get(const QUrl& url, QObject* context, Callback callback, qint64 sizeLimit = defaultSizeLimit);

    // Whether a download of this address is under way.
    [[nodiscard]] bool isFetching(const QUrl& url) const { return running_.contains(url); }

private:
    // One download across its redirects.
    struct Job {
        QUrl url;
        qint64 sizeLimit = 0;
        int redirects = 0;
        Callback callback;
    };

    void send(const QUrl& url, Job job);
    void finish(const Job& job, const DownloadResult& result);
    void watchSize(QNetworkReply* reply, qint64 sizeLimit);
    DownloadResult resultOf(QNetworkReply* reply) const;

    QNetworkAccessManager* manager_;
    QHash<QUrl, int> running_;
    int timeoutMilliseconds_;
};

} // namespace kavor
