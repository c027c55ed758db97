#pragma once

#include <QPointF>
#include <QString>

#include <functional>
#include <memory>
#include <stdexcept>

class QObject;
class QPointingDevice;
class QQuickItem;
class QQuickWindow;

namespace kavor {

// What a driven window did not do.
class TouchFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Drives a real window as a person does: finds items by their names, brings them into view, touches them,
// types with the keyboard, and waits for what should happen. Whatever does not happen in time throws a
// TouchFailure that says what was waited for.
class TouchDriver {
public:
    explicit TouchDriver(QQuickWindow& window);

    void setTimeout(int milliseconds) { timeout_ = milliseconds; }

    // The visible item of that name (also in popups), nullptr without one. "row|button" is the item of the
    // second name inside the item of the first.
    [[nodiscard]] QQuickItem* find(const QString& name) const;
    [[nodiscard]] bool isShown(const QString& name) const;
    // Waits until the item is on show and takes touches.
    QQuickItem* await(const QString& name);
    void awaitGone(const QString& name);
    void waitUntil(const QString& what, const std::function<bool()>& condition);

    // Touches the middle of an item after scrolling it into view.
    void tap(const QString& name);
    // Drags a finger over an item by a share of its size.
    void swipe(const QString& name, double horizontal, double vertical);
    // Taps a field, clears it and types.
    void type(const QString& name, const QString& text);
    void keys(const QString& text);
    void key(int key);

    // A property of an item on show, as text.
    [[nodiscard]] QString text(const QString& name, const char* property = "text");
    // All texts on show below an item (or in the window), joined by line feeds.
    [[nodiscard]] QString allTexts(QQuickItem* below = nullptr) const;

    // Waits until nothing moves and writes the window as a PNG.
    void shot(const QString& path);
    void settle();

private:
    void bringIntoView(QQuickItem* item);
    [[nodiscard]] bool loadsPictures() const;
    [[nodiscard]] bool isReachable(const QQuickItem* item) const;

    QQuickWindow& window_;
    std::unique_ptr<QPointingDevice> finger_;
    int timeout_ = 15000;
};

} // namespace kavor
