#include "server/Answer.h"

#include <arpa/inet.h>
#include <httplib.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>

namespace kavor::demo {

namespace {

/// The library lends no socket, so the connection is found by its two ports.
void shutConnection(int remotePort, int localPort) {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    const int last = int(std::min<rlim_t>(limit.rlim_cur, 4096));
    const auto portOf = [](int descriptor, auto call) {
        sockaddr_in address{};
        socklen_t size = sizeof address;
        return call(descriptor, reinterpret_cast<sockaddr*>(&address), &size) == 0 ? ntohs(address.sin_port)
                                                                                   : -1;
    };
    for (int descriptor = 3; descriptor < last; ++descriptor) {
        if (portOf(descriptor, getpeername) == remotePort && portOf(descriptor, getsockname) == localPort) {
            shutdown(descriptor, SHUT_RDWR);
        }
    }
}

void deliverBytes(const Answer& answer, httplib::Response& response) {
    const std::shared_ptr<const std::string> body = answer.body;
    const size_t total = body->size();
    const size_t cutAt = answer.delivery == Answer::Delivery::cut ? total / 2 : total;
    const size_t piece =
        answer.delivery == Answer::Delivery::slow ? std::max<size_t>(1, total / 20) : size_t(256) << 10;
    const int pause = answer.delivery == Answer::Delivery::slow ? answer.milliseconds : 0;
    // A provider of known length is never compressed by the library.
    response.set_content_provider(
        total, answer.type,
        [body, cutAt, piece, pause](size_t offset, size_t length, httplib::DataSink& sink) {
            if (offset >= cutAt) {
                return false;
            }
            if (pause > 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(pause));
            }
            return sink.write(body->data() + offset, std::min({length, piece, cutAt - offset}));
        });
}

/// The one range that an answer is asked for, within its size: first and last byte. None: the whole is
/// wanted. Several ranges at once get the whole too, which a server may always do.
std::optional<httplib::Range> wantedRange(const Answer& answer, const httplib::Request& request) {
    if (!answer.inRanges || answer.status != 200 || request.ranges.size() != 1) {
        return std::nullopt;
    }
    auto [first, last] = request.ranges.front();
    const auto size = ssize_t(answer.body->size());
    if (first < 0) { // the last so many bytes
        return last > 0 ? httplib::Range(std::max<ssize_t>(0, size - last), size - 1)
                        : httplib::Range(size, size);
    }
    return httplib::Range(first, last < 0 ? size - 1 : std::min(last, size - 1));
}

/// The library cuts every answer to the ranges of the request, whatever they are; so they are put right
/// first.
void putRangesRight(const Answer& answer, const httplib::Request& request, httplib::Response& response) {
    auto& ranges = const_cast<httplib::Ranges&>(request.ranges);
    const auto wanted = answer.body ? wantedRange(answer, request) : std::nullopt;
    ranges.clear();
    if (answer.inRanges && answer.status == 200) {
        response.set_header("Accept-Ranges", "bytes");
    }
    if (!wanted) {
        return;
    }
    if (wanted->first > wanted->second || wanted->first >= ssize_t(answer.body->size())) {
        response.status = 416;
        response.set_header("Content-Range", "bytes */" + std::to_string(answer.body->size()));
        return;
    }
    response.status = 206;
    ranges.push_back(*wanted);
}

} // namespace

Answer Answer::json(const Json& document, int status) {
    Answer answer;
    answer.status = status;
    answer.body = std::make_shared<const std::string>(document.dump());
    return answer;
}

Answer Answer::text(std::string body, std::string type) {
    Answer answer;
    answer.body = std::make_shared<const std::string>(std::move(body));
    answer.type = std::move(type);
    return answer;
}

Answer Answer::message(int status, const std::string& words) {
    return json({{"msg", words}}, status);
}

void deliver(const Answer& answer, const httplib::Request& request, httplib::Response& response) {
    response.status = answer.status;
    if (answer.delivery == Answer::Delivery::close) {
        shutConnection(request.remote_port, request.local_port);
        return;
    }
    putRangesRight(answer, request, response);
    if (response.status == 416 || !answer.body || answer.body->empty()) {
        response.set_content("", answer.type);
        return;
    }
    deliverBytes(answer, response);
}

} // namespace kavor::demo
