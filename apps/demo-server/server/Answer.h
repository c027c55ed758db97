#pragma once

#include "Json.h"

#include <memory>
#include <string>

namespace httplib {
struct Request;
struct Response;
} // namespace httplib

namespace kavor::demo {

/// What a request is answered with, and how the bytes leave.
struct Answer {
    enum class Delivery { whole, cut, slow, close };

    int status = 200;
    std::shared_ptr<const std::string> body;
    std::string type = "application/json; charset=utf-8";
    Delivery delivery = Delivery::whole;
    int milliseconds = 0;
    bool inRanges = false; ///< may be asked for in pieces, as players do

    static Answer json(const Json& document, int status = 200);
    static Answer text(std::string body, std::string type);
    static Answer page(std::string html) { return text(std::move(html), "text/html; charset=utf-8"); }
    /// A refusal with a text for the user.
    static Answer message(int status, const std::string& words);
};

/// Puts an answer into a response, uncompressed; a closed connection is cut off before anything is written.
void deliver(const Answer& answer, const httplib::Request& request, httplib::Response& response);

} // namespace kavor::demo
