#pragma once

#include <QAbstractListModel>
#include <QUrl>

#include <vector>

namespace kavor {

// A screen as the window shows it: its view and, where it has one, its controller.
struct Screen {
    QUrl view;
    QObject* controller = nullptr;
};

// The root screen and those that were opened on top of it; the last one is on show. Roles: view, controller.
// The stack owns the controllers and drops one after its view.
class ScreenStack : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { ViewRole = Qt::UserRole + 1, ControllerRole };

    using QAbstractListModel::QAbstractListModel;

    void push(const Screen& screen);
    // Removes the screen of this controller and all above it; a controller that is not there is no fault.
    void remove(const QObject* controller);
    // Removes all screens above the one of this controller; false, and nothing changes, when it is not there.
    bool removeAbove(const QObject* controller);
    // Makes a screen the only one.
    void replaceAll(const Screen& screen);
    [[nodiscard]] const Screen* top() const { return screens_.empty() ? nullptr : &screens_.back(); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void truncate(int count);

    std::vector<Screen> screens_;
};

} // namespace kavor
