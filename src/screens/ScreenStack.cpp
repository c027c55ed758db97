#include "screens/ScreenStack.h"

#include "screens/ScreenController.h"

#include <algorithm>

namespace kavor {

void ScreenStack::push(const Screen& screen) {
    if (screen.controller)
        screen.controller->setParent(this);
    const int row = rowCount();
    beginInsertRows({}, row, row);
    screens_.push_back(screen);
    endInsertRows();
    if (auto* controller = qobject_cast<ScreenController*>(screen.controller)) {
        connect(controller, &ScreenController::closed, this, [this, controller] { close(controller); });
        controller->viewWillAppear();
    }
}

void ScreenStack::close(const QObject* controller) {
    if (!screens_.empty() && screens_.front().controller == controller) {
        emit rootClosed();
        return;
    }
    const int before = rowCount();
    remove(controller);
    if (rowCount() < before) // a second tap closes nothing more
        appear();
}

void ScreenStack::appear() {
    if (auto* controller = top() ? qobject_cast<ScreenController*>(top()->controller) : nullptr)
        controller->viewWillAppear();
}

void ScreenStack::remove(const QObject* controller) {
    const auto found = std::ranges::find(screens_, controller, &Screen::controller);
    if (found != screens_.end())
        truncate(int(found - screens_.begin()));
}

bool ScreenStack::removeAbove(const QObject* controller) {
    const auto found = std::ranges::find(screens_, controller, &Screen::controller);
    if (found == screens_.end())
        return false;
    truncate(int(found - screens_.begin()) + 1);
    return true;
}

void ScreenStack::replaceAll(const Screen& screen) {
    truncate(0);
    push(screen);
}

void ScreenStack::truncate(int count) {
    if (count >= rowCount())
        return;
    const std::vector<Screen> gone(screens_.begin() + count, screens_.end());
    beginRemoveRows({}, count, rowCount() - 1);
    screens_.resize(std::size_t(count));
    endRemoveRows();
    // The views have been asked to go before; the controllers follow them.
    for (const Screen& screen : gone) {
        if (screen.controller)
            screen.controller->deleteLater();
    }
}

int ScreenStack::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(screens_.size());
}

QVariant ScreenStack::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Screen& screen = screens_[std::size_t(index.row())];
    if (role == ViewRole)
        return screen.view;
    return role == ControllerRole ? QVariant::fromValue(screen.controller) : QVariant();
}

QHash<int, QByteArray> ScreenStack::roleNames() const {
    return {{ViewRole, "view"}, {ControllerRole, "controller"}};
}

} // namespace kavor
