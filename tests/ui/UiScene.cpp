#include "UiScene.h"

#include "ui/Ui.h"

#include <QGuiApplication>
#include <QMutex>
#include <QQmlComponent>
#include <QQmlContext>
#include <QTest>

#include <algorithm>

namespace kavor {

namespace {

QMutex warningsMutex; // pictures and types warn from threads of their own
QStringList* warningsOfScene = nullptr;

void keepWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
    const QMutexLocker lock(&warningsMutex);
    if (type != QtDebugMsg && type != QtInfoMsg && warningsOfScene != nullptr)
        warningsOfScene->append(text);
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

QQuickItem* findVisible(QQuickItem* parent, const QString& name) {
    for (QQuickItem* child : parent->childItems()) {
        if (!child->isVisible())
            continue;
        if (child->objectName() == name)
            return child;
        if (QQuickItem* found = findVisible(child, name))
            return found;
    }
    return nullptr;
}

QPointingDevice* finger() {
    static QPointingDevice* device = QTest::createTouchDevice();
    return device;
}

} // namespace

UiScene::UiScene(const QString& content, QSize size, const QHash<QString, QObject*>& context) {
    {
        const QMutexLocker lock(&warningsMutex);
        warningsOfScene = &warnings_;
    }
    qInstallMessageHandler(keepWarning);
    registerUi(engine_);
    for (auto it = context.begin(); it != context.end(); ++it)
        engine_.rootContext()->setContextProperty(it.key(), it.value());
    const QString whole =
        QStringLiteral("import QtQuick\nimport QtQuick.Layouts\nimport Kavor.Ui\n"
                       "AppWindow { id: window; property var log: []; width: %1; height: %2\n"
                       "visible: true\n%3\n}")
            .arg(size.width())
            .arg(size.height())
            .arg(content);
    QQmlComponent component(&engine_);
    component.setData(whole.toUtf8(), QUrl());
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (window_ == nullptr) {
        qFatal("the scene does not load: %s", qPrintable(component.errorString()));
    }
    window_->requestActivate();
    if (!QTest::qWaitForWindowActive(window_.get()))
        qFatal("the window does not become active");
    settle();
}

UiScene::~UiScene() {
    window_.reset();
    {
        const QMutexLocker lock(&warningsMutex);
        warningsOfScene = nullptr;
    }
    qInstallMessageHandler(nullptr);
}

// Layout and drawing of what the last event changed.
void UiScene::settle() const {
    QCoreApplication::processEvents();
    window_->grabWindow();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QQuickItem* UiScene::find(const QString& name) const {
    return findVisible(window_->contentItem(), name);
}

QQuickItem* UiScene::item(const QString& name) const {
    waitFor([&] { return find(name) != nullptr; });
    return find(name);
}

bool UiScene::isOnShow(const QString& name) const {
    return find(name) != nullptr;
}

QVariant UiScene::value(const QString& name, const char* property) const {
    const QQuickItem* found = item(name);
    return found == nullptr ? QVariant() : found->property(property);
}

QStringList UiScene::log() const {
    return window_->property("log").toStringList();
}

QString UiScene::focusName() const {
    for (QQuickItem* at = window_->activeFocusItem(); at != nullptr; at = at->parentItem()) {
        if (!at->objectName().isEmpty())
            return at->objectName();
    }
    return {};
}

void UiScene::click(const QString& name) {
    QQuickItem* target = item(name);
    if (target == nullptr) {
        qWarning("there is nothing named %s to click", qPrintable(name));
        return;
    }
    const QPointF middle = target->mapToScene({target->width() / 2, target->height() / 2});
    QTest::mouseClick(window_.get(), Qt::LeftButton, Qt::NoModifier, middle.toPoint());
    settle();
}

void UiScene::tap(QPoint point) {
    QTest::touchEvent(window_.get(), finger()).press(1, point, window_.get());
    QTest::touchEvent(window_.get(), finger()).release(1, point, window_.get());
    settle();
}

void UiScene::swipe(QPoint from, QPoint to) {
    constexpr int kSteps = 12;
    QTest::touchEvent(window_.get(), finger()).press(1, from, window_.get());
    for (int step = 1; step <= 2 * kSteps; ++step) {
        // The second half rests at the end, so that no speed is left to flick on with.
        const QPoint at = from + (to - from) * std::min(step, kSteps) / kSteps;
        QTest::touchEvent(window_.get(), finger()).move(1, at, window_.get());
        settle();
    }
    QTest::touchEvent(window_.get(), finger()).release(1, to, window_.get());
    settle();
}

void UiScene::pinch(QPoint centre, int fromDistance, int toDistance) {
    constexpr int kSteps = 12;
    const auto left = [&](int distance) { return centre - QPoint(distance / 2, 0); };
    const auto right = [&](int distance) { return centre + QPoint(distance / 2, 0); };
    QTest::touchEvent(window_.get(), finger())
        .press(1, left(fromDistance), window_.get())
        .press(2, right(fromDistance), window_.get());
    for (int step = 1; step <= kSteps; ++step) {
        const int distance = fromDistance + (toDistance - fromDistance) * step / kSteps;
        QTest::touchEvent(window_.get(), finger())
            .move(1, left(distance), window_.get())
            .move(2, right(distance), window_.get());
        settle();
    }
    QTest::touchEvent(window_.get(), finger())
        .release(1, left(toDistance), window_.get())
        .release(2, right(toDistance), window_.get());
    settle();
}

void UiScene::wheel(QPoint point, int angle, Qt::KeyboardModifiers modifiers) {
    QWheelEvent event(point, window_->mapToGlobal(point), {}, {0, angle}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window_.get(), &event);
    settle();
}

void UiScene::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window_.get(), key, modifiers);
    settle();
}

void UiScene::type(const QString& text) {
    for (const QChar letter : text)
        QTest::keyClick(window_.get(), letter.toLatin1());
    settle();
}

bool UiScene::waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
}

} // namespace kavor
