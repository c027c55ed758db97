#pragma once

#include <QHash>
#include <QPointF>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

#include <functional>
#include <memory>
#include <ostream>

// How a failed expectation shows these.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out) {
    *out << '[' << texts.join(" | ").toStdString() << ']';
}

namespace kavor {

// A window with the given QML inside AppWindow, driven by mouse, touch and keys. Everything that Qt or QML
// warns about while it lives is kept in warnings().
class UiScene {
public:
    static constexpr QSize kTablet{1024, 768};
    static constexpr QSize kPhone{390, 844};

    explicit UiScene(const QString& content, QSize size = kTablet,
                     const QHash<QString, QObject*>& context = {});
    ~UiScene();

    [[nodiscard]] QQuickWindow* window() const { return window_.get(); }
    [[nodiscard]] QQmlEngine& engine() { return engine_; }
    [[nodiscard]] const QStringList& warnings() const { return warnings_; }

    // The item of this name that is on show, also inside popups; waits for it, nullptr when it does not come.
    [[nodiscard]] QQuickItem* item(const QString& name) const;
    [[nodiscard]] bool isOnShow(const QString& name) const;
    [[nodiscard]] QVariant value(const QString& name, const char* property) const;
    // What the content keeps in the property "log" of its window.
    [[nodiscard]] QStringList log() const;
    // The name of the item with the keyboard's focus, or of its nearest named parent.
    [[nodiscard]] QString focusName() const;

    void click(const QString& name);
    void tap(QPoint point);
    void swipe(QPoint from, QPoint to);
    // Two fingers around the centre, from one distance between them to another.
    void pinch(QPoint centre, int fromDistance, int toDistance);
    void wheel(QPoint point, int angle, Qt::KeyboardModifiers modifiers);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);

    // Runs the event loop until the condition holds; false after five seconds.
    static bool waitFor(const std::function<bool()>& condition);

private:
    [[nodiscard]] QQuickItem* find(const QString& name) const;
    void settle() const;

    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    QStringList warnings_;
};

} // namespace kavor
