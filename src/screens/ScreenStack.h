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
// Any screen may open another one. The stack owns the controllers and drops one after its view; one that is a
// ScreenController hears when it comes on show, and goes when it says that the user leaves it.
class ScreenStack : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { ViewRole = Qt::UserRole + 1, ControllerRole };

    using QAbstractListModel::QAbstractListModel;

    // The one way to a further screen; what it needs it was made with.
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

signals:
    // The user left the root screen; it stays until another one takes its place.
    void rootClosed();

private:
    void close(const QObject* controller);
    void truncate(int count);
    void appear();

    std::vector<Screen> screens_;
};

} // namespace kavor
