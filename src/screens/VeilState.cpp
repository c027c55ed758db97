#include "screens/VeilState.h"

#include "interaction/QtText.h"
#include "interaction/VeiledRun.h"

#include <string>
#include <utility>
#include <variant>

namespace kavor {

namespace {

template <class Value>
Value valueOf(const NotificationInfo& info, const char* key) {
    const auto entry = info.find(key);
    const auto* value = entry == info.end() ? nullptr : std::get_if<Value>(&entry->second);
    return value ? *value : Value();
}

} // namespace

void VeilState::follow() {
    following_ = true;
    posted_ = NotificationCenter::shared().observe(
        notification::visibilityVeilView, [this](const NotificationInfo& info) {
            const bool show = valueOf<bool>(info, "show");
            if (show)
                setText(fromUtf8(valueOf<std::string>(info, "text")));
            setVisible(show, valueOf<bool>(info, VeiledRun::leavable));
        });
}

void VeilState::unfollow() {
    following_ = false;
    posted_ = {};
}

void VeilState::setVisible(bool visible, bool leavable) {
    const bool was = std::exchange(visible_, visible);
    const bool couldBeLeft = std::exchange(leavable_, leavable);
    if (was != visible || couldBeLeft != leavable)
        emit changed();
}

void VeilState::setText(const QString& text) {
    if (std::exchange(text_, text) != text)
        emit textChanged();
}

void VeilState::setProgress(double progress) {
    if (std::exchange(progress_, progress) != progress)
        emit progressChanged();
}

void VeilState::leave() {
    if (!leavable_)
        return;
    if (following_)
        NotificationCenter::shared().post(notification::veilViewLeft);
    emit left();
}

} // namespace kavor
