#include "ui/FocusFollower.h"

#include <QEvent>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr double air = 24; // around what has the focus

bool isListView(const QQuickItem* view) {
    return view->inherits("QQuickItemView");
}

// The first position at which `from` to `to` stands within a view of that size.
double scrolled(double now, double size, double from, double to) {
    if (to > now + size)
        now = to - size;
    return std::min(now, from);
}

} // namespace

void FocusFollower::setView(QQuickItem* view) {
    if (std::exchange(view_, view) == view)
        return;
    emit viewChanged();
}

void FocusFollower::componentComplete() {
    if (!view_)
        return;
    connect(view_, &QQuickItem::windowChanged, this, &FocusFollower::follow);
    connect(view_, &QQuickItem::widthChanged, this, &FocusFollower::followAfterLayout);
    connect(view_, &QQuickItem::heightChanged, this, &FocusFollower::followAfterLayout);
    follow(view_->window());
}

void FocusFollower::follow(QQuickWindow* window) {
    if (window_)
        window_->removeEventFilter(this);
    disconnect(focusChange_);
    window_ = window;
    if (!window_)
        return;
    window_->installEventFilter(this);
    focusChange_ = connect(window_, &QQuickWindow::activeFocusItemChanged, this, &FocusFollower::focusMoved);
}

QQuickItem* FocusFollower::content() const {
    return view_ ? view_->property("contentItem").value<QQuickItem*>() : nullptr;
}

QQuickItem* FocusFollower::focusedRow() const {
    const QQuickItem* inside = content();
    if (!inside)
        return nullptr;
    QQuickItem* item = window_ ? window_->activeFocusItem() : nullptr;
    while (item && item->parentItem() != inside)
        item = item->parentItem();
    return item;
}

bool FocusFollower::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !view_ || !view_->isVisible() || !isListView(view_))
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab)
        return false;
    const bool back =
        key == Qt::Key_Backtab || static_cast<QKeyEvent*>(event)->modifiers() & Qt::ShiftModifier;
    makeNeighbour(back ? -1 : 1);
    orderRows();
    skipSpareRows();
    return false; // the window moves the focus
}

// The row that Tab may lead to exists: it comes into sight beside the one in focus. A jump to its index could
// let go of the row in focus, where rows differ in height.
void FocusFollower::makeNeighbour(int direction) {
    const QQuickItem* row = focusedRow();
    const int count = view_->property("count").toInt();
    if (!row || count == 0)
        return;
    const int index = indexOf(row);
    const int next = index + direction;
    if (index < 0 || next < 0 || next >= count || rowAt(next))
        return;
    const bool sideways = view_->property("orientation").toInt() == Qt::Horizontal;
    const char* position = sideways ? "contentX" : "contentY";
    const double from = sideways ? row->x() : row->y();
    const double to = from + (sideways ? row->width() : row->height());
    const double size = sideways ? view_->width() : view_->height();
    const double peep = view_->property("spacing").toDouble() + 1;
    const double now = view_->property(position).toDouble();
    view_->setProperty(position,
                       direction > 0 ? std::max(now, to + peep - size) : std::min(now, from - peep));
    QMetaObject::invokeMethod(view_, "forceLayout");
}

int FocusFollower::indexOf(const QQuickItem* row) const {
    int index = -1;
    QMetaObject::invokeMethod(view_, "indexAt", Q_RETURN_ARG(int, index), Q_ARG(double, row->x() + 1),
                              Q_ARG(double, row->y() + 1));
    return index;
}

QQuickItem* FocusFollower::rowAt(int index) const {
    QQuickItem* row = nullptr;
    QMetaObject::invokeMethod(view_, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, index));
    return row;
}

// Tab takes the children of an item in their stacking order, and a list keeps its rows in the order in which
// they were made.
void FocusFollower::orderRows() {
    QQuickItem* inside = content();
    if (!inside)
        return;
    QList<QQuickItem*> rows = inside->childItems();
    const auto above = [](const QQuickItem* a, const QQuickItem* b) {
        return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
    };
    if (std::ranges::is_sorted(rows, above))
        return;
    std::ranges::stable_sort(rows, above);
    for (qsizetype i = 1; i < rows.size(); ++i)
        rows[i]->stackAfter(rows[i - 1]);
}

// A list keeps rows that it has no use for now; they are not on the screen, but Tab would stop at them.
void FocusFollower::skipSpareRows() {
    QQuickItem* inside = content();
    if (!inside)
        return;
    const auto* header = view_->property("headerItem").value<QQuickItem*>();
    const auto* footer = view_->property("footerItem").value<QQuickItem*>();
    const QList<QQuickItem*> rows = inside->childItems();
    for (QQuickItem* row : rows) {
        if (row == header || row == footer || !row->isEnabled() || rowAt(indexOf(row)) == row)
            continue;
        row->setEnabled(false);
        spare_.append(row);
    }
    QMetaObject::invokeMethod(this, &FocusFollower::wakeSpareRows, Qt::QueuedConnection);
}

void FocusFollower::wakeSpareRows() {
    for (const auto& row : std::exchange(spare_, {})) {
        if (row)
            row->setEnabled(true);
    }
}

void FocusFollower::focusMoved() {
    followFocus();
    followAfterLayout();
}

void FocusFollower::followFocus() {
    const QQuickItem* item = window_ ? window_->activeFocusItem() : nullptr;
    if (!item || !focusedRow())
        return;
    // What is being pressed must not move away from under the finger, or the tap is lost.
    if (item->property("focusReason").toInt() == Qt::MouseFocusReason)
        return;
    bringIntoView(item);
}

// Rows that were just made, and those of a turned window, find their places before the next frame.
void FocusFollower::followAfterLayout() {
    if (!window_ || !focusedRow())
        return;
    connect(window_, &QQuickWindow::afterAnimating, this, &FocusFollower::followFocus,
            static_cast<Qt::ConnectionType>(Qt::UniqueConnection | Qt::SingleShotConnection));
}

void FocusFollower::bringIntoView(const QQuickItem* item) {
    const QRectF place = content()->mapRectFromItem(item, {0, 0, item->width(), item->height()});
    const auto scroll = [this](const char* position, const char* origin, const char* extent, double size,
                               double from, double to) {
        const double least = view_->property(origin).toDouble();
        const double most = std::max(least, least + view_->property(extent).toDouble() - size);
        const double now = view_->property(position).toDouble();
        const double wanted = std::clamp(scrolled(now, size, from - air, to + air), least, most);
        if (wanted != now && (from < now || to > now + size))
            view_->setProperty(position, wanted);
    };
    scroll("contentY", "originY", "contentHeight", view_->height(), place.top(), place.bottom());
    scroll("contentX", "originX", "contentWidth", view_->width(), place.left(), place.right());
}

} // namespace kavor
