#pragma once

#include "network/ServiceOperations.h"

#include <functional>

namespace kavor {

class AlertPresenter;
class UrlOpener;

// Where failures are shown.
struct FailurePresenter {
    AlertPresenter& alerts;
    UrlOpener& urls;
};

// The single presenter of a failed request. An update-needed answer offers "No" and "Actualizar" and leaves
// the veil as it is; any other failure shows the first message (when messages are preferred and there are
// some) or the error's description under the title, with "Aceptar", and then hides the veil.
void showRequestFailure(const FailurePresenter& presenter, const std::function<void()>& hideVeil,
                        const RequestFailure& failure, bool preferMessages, const QString& title);

} // namespace kavor
