#pragma once

#include <QGuiApplication>
#include <QObject>
#include <QQuickWindow>
#include <QThread>

#include <atomic>

namespace kavor {

// What a window does while it is driven: how many frames it drew and in which thread, and how often the font
// database changed meanwhile, which must not happen while another thread draws.
class WindowWatch : public QObject {
public:
    explicit WindowWatch(QQuickWindow& window) {
        connect(
            &window, &QQuickWindow::afterRendering, this,
            [this] {
                ++frames_;
                if (QThread::currentThread() != thread())
                    drawnElsewhere_ = true;
            },
            Qt::DirectConnection);
        connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, [this] { ++fontChanges_; });
    }

    [[nodiscard]] int frames() const { return frames_; }
    [[nodiscard]] int fontChanges() const { return fontChanges_; }
    // Whether a thread of its own draws, as it does for users.
    [[nodiscard]] bool hasThreadOfItsOwn() const { return drawnElsewhere_; }

private:
    std::atomic<int> frames_ = 0;
    std::atomic<bool> drawnElsewhere_ = false;
    int fontChanges_ = 0;
};

} // namespace kavor
