#pragma once

#include "network/ServiceOperations.h"

#include <QByteArray>

namespace kavor {

struct HttpAnswer;

// The text for a failure that the server doesn't explain.
QString genericFailureMessage();

// What the caller learns of a request that failed for good: the error, and the messages that the server's
// body or the kind of failure gives.
RequestFailure mapFailure(const HttpAnswer& answer);

// What an answer says that has status 200 and refuses all the same; nothing for one that does not.
std::optional<RequestFailure> refusalIn(const GenericOrderResponse& answer);

} // namespace kavor
