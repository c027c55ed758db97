#include "resources/PlainDownloader.h"

#include "base/Log.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

DownloadResult resultOf(const HttpAnswer& answer) {
    DownloadResult result;
    if (answer.status != 0)
        result.status = answer.status;
    if (answer.fault != HttpAnswer::Fault::None)
        result.transportError = answer.reason;
    else if (answer.isRedirect)
        result.transportError = QStringLiteral("a redirect that is not followed");
    else
        result.body = answer.body;
    result.lengthIsVerified = answer.lengthIsVerified;
    return result;
}

} // namespace

PlainDownloader::PlainDownloader(QObject* parent, int timeoutMilliseconds)
    : QObject(parent)
    , timeoutMilliseconds_(timeoutMilliseconds) {}

PlainDownloader::~PlainDownloader() = default;

PlainDownloader::Ticket PlainDownloader::get(const QUrl& url, QObject* context, Callback callback,
                                             qint64 sizeLimit, Lane lane) {
    ++running_[url];
    const auto bound = [guard = QPointer<QObject>(context), isBound = context != nullptr,
                        callback = std::move(callback)](const DownloadResult& result) {
        if (!isBound || guard)
            callback(result);
    };
    enter(std::make_shared<Job>(Job{++lastTicket_, url, sizeLimit, lane, bound}));
    return lastTicket_;
}

void PlainDownloader::hasten(Ticket ticket, Lane lane) {
    for (Queue& queue : lanes_) {
        const auto found =
            std::ranges::find(queue.waiting, ticket, [](const auto& job) { return job->ticket; });
        if (found == queue.waiting.end())
            continue;
        const JobPointer job = *found;
        queue.waiting.erase(found);
        job->lane = lane;
        enter(job);
        return;
    }
}

void PlainDownloader::enter(const JobPointer& job) {
    queueOf(job->lane).waiting.push_back(job);
    startNext(job->lane);
}

void PlainDownloader::startNext(Lane lane) {
    Queue& queue = queueOf(lane);
    while (!queue.waiting.empty() && queue.running < laneWidths[std::size_t(lane)]) {
        const JobPointer job = queue.waiting.front();
        queue.waiting.pop_front();
        ++queue.running;
        send(job);
    }
}

void PlainDownloader::send(const JobPointer& job) {
    // Without compression the length of the body can be checked against the announced one.
    const HttpRules rules{HttpRules::Redirects::AnyHost, false, job->sizeLimit, timeoutMilliseconds_};
    HttpRequest request;
    request.url = job->url;
    auto* exchange = new HttpExchange(
        connections_, rules, request, [this, job](const HttpAnswer& answer) { finish(job, answer); }, this);
    exchange->start();
}

void PlainDownloader::finish(const JobPointer& job, const HttpAnswer& answer) {
    if (answer.isTooLarge)
        logLine("Not downloaded, above the limit of " + std::to_string(job->sizeLimit) +
                " bytes: " + job->url.toString(QUrl::RemoveQuery | QUrl::RemoveUserInfo).toStdString());
    if (--running_[job->url] == 0)
        running_.remove(job->url);
    --queueOf(job->lane).running;
    startNext(job->lane);
    job->callback(resultOf(answer));
}

} // namespace kavor
