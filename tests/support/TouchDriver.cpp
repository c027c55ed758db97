#include "support/TouchDriver.h"

#include <QElapsedTimer>
#include <QImage>
#include <QKeyEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace kavor {

namespace {

void fail(const QString& text) {
    throw TouchFailure(text.toStdString());
}

// Visits the visible items from the top of the stack down; the visitor answers whether to go on.
bool visit(QQuickItem* item, const std::function<bool(QQuickItem*)>& visitor) {
    if (!item->isVisible() || item->opacity() < 0.01)
        return true;
    const auto children = item->childItems();
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if (!visit(*child, visitor))
            return false;
    }
    return visitor(item);
}

QPointF middle(const QQuickItem* item) {
    return item->mapToScene({item->width() / 2, item->height() / 2});
}

// After a change of screen the client takes no press for a moment.
bool takesPresses(const QQuickWindow& window) {
    const QVariant open = window.property("takesPresses");
    return !open.isValid() || open.toBool();
}

// Whether a picture below an item is on its way; one that shows nothing until it is there counts too.
bool loads(const QQuickItem* item) {
    constexpr int loading = 2; // Image.Loading
    if (!item->isVisible())
        return false;
    if (item->inherits("QQuickImage") && item->property("status").toInt() == loading)
        return true;
    return std::ranges::any_of(item->childItems(), loads);
}

bool isFlickable(const QQuickItem* item) {
    return item->inherits("QQuickFlickable");
}

} // namespace

TouchDriver::TouchDriver(QQuickWindow& window)
    : window_(window)
    , finger_(QTest::createTouchDevice()) {}

QQuickItem* TouchDriver::find(const QString& name) const {
    QQuickItem* found = window_.contentItem();
    for (const QString& part : name.split(QLatin1Char('|'))) {
        QQuickItem* below = std::exchange(found, nullptr);
        visit(below, [&](QQuickItem* item) {
            if (item->objectName() != part)
                return true;
            found = item;
            return false;
        });
        if (!found)
            return nullptr;
    }
    return found;
}

bool TouchDriver::isShown(const QString& name) const {
    return find(name) != nullptr;
}

void TouchDriver::waitUntil(const QString& what, const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > timeout_)
            fail(QStringLiteral("waited in vain for: %1\nthe window shows:\n%2").arg(what, allTexts()));
        QTest::qWait(5);
    }
}

QQuickItem* TouchDriver::await(const QString& name) {
    waitUntil(QStringLiteral("item \"%1\"").arg(name), [&] { return find(name) != nullptr; });
    return find(name);
}

void TouchDriver::awaitGone(const QString& name) {
    waitUntil(QStringLiteral("\"%1\" to go").arg(name), [&] { return find(name) == nullptr; });
}

bool TouchDriver::isReachable(const QQuickItem* item) const {
    const QPointF place = middle(item);
    if (!QRectF(0, 0, window_.width(), window_.height()).contains(place))
        return false;
    for (const QQuickItem* up = item->parentItem(); up != nullptr; up = up->parentItem()) {
        if ((up->clip() || isFlickable(up)) && !up->contains(up->mapFromScene(place)))
            return false;
    }
    return true;
}

void TouchDriver::bringIntoView(QQuickItem* item) {
    bool moved = false;
    for (QQuickItem* up = item->parentItem(); up != nullptr; up = up->parentItem()) {
        if (!isFlickable(up))
            continue;
        const QPointF place = up->mapFromItem(item, QPointF(item->width() / 2, item->height() / 2));
        // A list with a header begins above its own zero.
        const auto shift = [&](const char* content, const char* origin, const char* extent, double at,
                               double size) {
            const double most = std::max(0.0, up->property(extent).toDouble() - size);
            const double first = up->property(origin).toDouble();
            const double now = up->property(content).toDouble();
            // Scrolling to the middle keeps clear of bars that lie over the edges.
            if (most > 0 && (at < size * 0.12 || at > size * 0.88)) {
                up->setProperty(content, std::clamp(now + at - size / 2, first, first + most));
                moved = moved || !qFuzzyCompare(now + 1, up->property(content).toDouble() + 1);
            }
        };
        shift("contentY", "originY", "contentHeight", place.y(), up->height());
        shift("contentX", "originX", "contentWidth", place.x(), up->width());
    }
    if (moved)
        settle();
}

void TouchDriver::tap(const QString& name) {
    settle(); // a popup that still fades would take the touch
    QPointer<QQuickItem> item;
    // Lists make their rows anew while they filter, so the item is looked up until it stands still.
    waitUntil(QStringLiteral("\"%1\" within reach and enabled").arg(name), [&] {
        item = find(name);
        if (!item || !item->isEnabled() || !takesPresses(window_))
            return false;
        bringIntoView(item);
        return item && item == find(name) && isReachable(item);
    });
    const QPoint place = middle(item).toPoint();
    QTest::touchEvent(&window_, finger_.get()).press(0, place, &window_);
    QTest::qWait(15);
    QTest::touchEvent(&window_, finger_.get()).release(0, place, &window_);
    QTest::qWait(15);
}

void TouchDriver::swipe(const QString& name, double horizontal, double vertical) {
    settle();
    QQuickItem* item = await(name);
    waitUntil(QStringLiteral("a window that takes presses"), [this] { return takesPresses(window_); });
    bringIntoView(item);
    const QPointF from = middle(item);
    const QPointF way(horizontal * item->width(), vertical * item->height());
    constexpr int steps = 12;
    QTest::touchEvent(&window_, finger_.get()).press(0, from.toPoint(), &window_);
    for (int i = 1; i <= steps; ++i) {
        QTest::qWait(16);
        QTest::touchEvent(&window_, finger_.get()).move(0, (from + way * i / steps).toPoint(), &window_);
    }
    QTest::qWait(16);
    QTest::touchEvent(&window_, finger_.get()).release(0, (from + way).toPoint(), &window_);
    settle();
}

void TouchDriver::keys(const QString& text) {
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&window_, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&window_, &release);
    }
    QTest::qWait(1);
}

void TouchDriver::key(int key) {
    QTest::keyClick(&window_, static_cast<Qt::Key>(key));
}

void TouchDriver::type(const QString& name, const QString& text) {
    tap(name);
    waitUntil(QStringLiteral("the keyboard in \"%1\"").arg(name), [&] {
        const QQuickItem* focused = window_.activeFocusItem();
        return focused != nullptr &&
               (focused->inherits("QQuickTextInput") || focused->inherits("QQuickTextEdit"));
    });
    QTest::keyClick(&window_, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&window_, Qt::Key_Delete);
    keys(text);
}

QString TouchDriver::text(const QString& name, const char* property) {
    return await(name)->property(property).toString();
}

QString TouchDriver::allTexts(QQuickItem* below) const {
    std::vector<std::pair<QPointF, QString>> texts;
    visit(below != nullptr ? below : window_.contentItem(), [&](QQuickItem* item) {
        if (item->inherits("QQuickText") || item->inherits("QQuickTextInput") ||
            item->inherits("QQuickTextEdit")) {
            const QString text = item->property("text").toString();
            if (!text.isEmpty())
                texts.emplace_back(item->mapToScene({0, 0}), text);
        }
        return true;
    });
    std::stable_sort(texts.begin(), texts.end(), [](const auto& a, const auto& b) {
        return std::lround(a.first.y()) != std::lround(b.first.y()) ? a.first.y() < b.first.y()
                                                                    : a.first.x() < b.first.x();
    });
    QStringList lines;
    for (const auto& [place, text] : texts)
        lines.append(text);
    return lines.join(QLatin1Char('\n'));
}

bool TouchDriver::loadsPictures() const {
    return loads(window_.contentItem());
}

void TouchDriver::settle() {
    // Two equal views in a row and no picture on its way: everything stands still.
    QImage last;
    for (int i = 0; i < 250; ++i) {
        QTest::qWait(40);
        QImage now = window_.grabWindow();
        if (now == last && !loadsPictures())
            return;
        last = std::move(now);
    }
}

void TouchDriver::shot(const QString& path) {
    settle();
    if (!window_.grabWindow().save(path))
        fail(QStringLiteral("could not write the picture %1").arg(path));
}

} // namespace kavor
