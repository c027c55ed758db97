#pragma once

#include <QString>
#include <QTimer>

#include <functional>
#include <mutex>
#include <ostream>

namespace kavor::ctl {

// One line that tells a person at the terminal what a longer run is at: it comes after a second, stands below
// the lines of the log, and goes at the end. Shows nothing where stderr is no terminal. One at a time; needs
// an event loop.
class Progress {
public:
    Progress(std::ostream& err, const QString& text);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    // Changes the text; an empty one leaves the earlier.
    void show(const QString& text);
    // Prints something else to the terminal, with the line out of its way.
    void around(const std::function<void()>& print);

private:
    void draw();
    void erase();

    std::ostream& err_;
    bool terminal_;
    bool visible_ = false;
    std::string text_;
    std::mutex mutex_; // the log may speak in any thread
    QTimer delay_;
};

} // namespace kavor::ctl
