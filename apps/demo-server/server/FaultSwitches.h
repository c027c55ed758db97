#pragma once

#include "Json.h"

#include <list>
#include <mutex>
#include <optional>
#include <string>

namespace kavor::demo {

/// A fault that the next requests for a path meet.
struct FaultSwitch {
    enum class Kind {
        status,     ///< a status, with a body of its own or the usual one of that status
        wrongShape, ///< 200 with JSON of another form
        html,       ///< 200 with a page
        notJson,    ///< 200 with a text that breaks off
        empty,      ///< 200 without a body
        cut,        ///< the real answer, half of it
        slow,       ///< the real answer in small pieces
        delay,      ///< the real answer after a while
        errors,     ///< 200 with "errors", and nothing done
        noUrl,      ///< the real answer without its addresses
        close       ///< no answer at all
    };
    std::string path;   ///< whole path, or a beginning that ends with *
    std::string method; ///< empty: any
    Kind kind = Kind::status;
    int status = 500;
    std::optional<std::string> body;
    int times = 1; ///< how often; 0: until taken away
    int milliseconds = 50;
    bool after = false; ///< do what was asked for, and only then fail to say so
};

/// The faults that tests have switched on.
class FaultSwitches {
public:
    /// Adds the fault that a JSON object describes; answers what is wrong with it, or nothing.
    std::optional<std::string> add(const Json& description);
    void clear();

    /// The fault for this request, counted down.
    std::optional<FaultSwitch> take(const std::string& method, const std::string& path);

private:
    std::mutex mutex_;
    std::list<FaultSwitch> switches_;
};

} // namespace kavor::demo
