#pragma once

#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QQuickWindow;

namespace kavor {

// Makes a scrolling view follow the keyboard's focus: `FocusFollower { view: list }`. What has the focus
// stays in sight. In a list of rows Tab goes through them in the order of the screen, and on to the next row
// also when that one has not been made yet.
class FocusFollower : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    // A Flickable or a list view.
    Q_PROPERTY(QQuickItem* view MEMBER view_ WRITE setView NOTIFY viewChanged REQUIRED)

public:
    using QObject::QObject;
    void setView(QQuickItem* view);
    void classBegin() override {}
    void componentComplete() override;

    bool eventFilter(QObject* window, QEvent* event) override;

signals:
    void viewChanged();

private:
    void follow(QQuickWindow* window);
    void focusMoved();
    void followFocus();
    void followAfterLayout();
    void bringIntoView(const QQuickItem* item);
    [[nodiscard]] QQuickItem* content() const;
    // The child of the content that holds the focus; null when it is elsewhere.
    [[nodiscard]] QQuickItem* focusedRow() const;
    [[nodiscard]] int indexOf(const QQuickItem* row) const;
    [[nodiscard]] QQuickItem* rowAt(int index) const;
    void makeNeighbour(int direction);
    void orderRows();
    void skipSpareRows();
    void wakeSpareRows();

    QPointer<QQuickItem> view_;
    QPointer<QQuickWindow> window_;
    QMetaObject::Connection focusChange_;
    QList<QPointer<QQuickItem>> spare_; // disabled while the focus moves
};

} // namespace kavor
