#pragma once

#include "base/NotificationCenter.h"
#include "interaction/PendingRun.h"

#include <functional>
#include <string>
#include <utility>

namespace kavor {

namespace notification {
// The user has left the wizard's veil.
inline constexpr std::string_view veilViewLeft = "VeilViewLeft";
} // namespace notification

// Shows or hides the veil, which says what it waits for.
inline void showVeil(bool show, const char* waitingFor = "") {
    NotificationCenter::shared().post(notification::visibilityVeilView,
                                      {{"show", show}, {"text", std::string(waitingFor)}});
}

// A run of a step behind the wizard's veil that the user may leave: the veil goes, and what takes the run's
// context hears nothing more.
class VeiledRun {
public:
    // The key, beside "show", that says whether the veil can be left.
    static constexpr char leavable[] = "leavable";

    VeiledRun()
        : left_(NotificationCenter::shared().observe(notification::veilViewLeft,
                                                     [this](const NotificationInfo&) { leave(); })) {}
    VeiledRun(const VeiledRun&) = delete;
    VeiledRun& operator=(const VeiledRun&) = delete;
    // A step that goes takes its veil along: nobody could leave it any more.
    ~VeiledRun() {
        if (run_.isUnderWay())
            post(false);
    }

    // Shows the veil, which says what it waits for. onLeft runs when the user leaves the run, not when it
    // ends.
    QObject* begin(const char* waitingFor, std::function<void()> onLeft = {}) {
        onLeft_ = std::move(onLeft);
        post(true, waitingFor);
        return run_.begin();
    }
    // Hides the veil; nothing of the run is waited for any more.
    void end() {
        run_.end();
        onLeft_ = {};
        post(false);
    }

private:
    static void post(bool show, const char* waitingFor = "") {
        NotificationCenter::shared().post(
            notification::visibilityVeilView,
            {{"show", show}, {"text", std::string(waitingFor)}, {leavable, show}});
    }
    void leave() {
        if (!run_.isUnderWay())
            return;
        const auto onLeft = std::move(onLeft_);
        end();
        if (onLeft)
            onLeft();
    }

    PendingRun run_;
    std::function<void()> onLeft_;
    NotificationCenter::Subscription left_;
};

} // namespace kavor
