#pragma once

#include <QObject>

#include <memory>

namespace kavor {

// What the user waits for behind a veil: one request, or several that follow each other. Whatever takes
// context() as its context is heard only while the run stands; a run that was left, ended or replaced hears
// nothing more, however late an answer comes. Main thread only.
class PendingRun {
public:
    // Begins a run, which takes the place of the one before.
    QObject* begin() {
        context_ = std::make_unique<QObject>();
        return context_.get();
    }
    // Of the run that stands; null without one.
    [[nodiscard]] QObject* context() const { return context_.get(); }
    [[nodiscard]] bool isUnderWay() const { return context_ != nullptr; }
    void end() { context_.reset(); }

private:
    std::unique_ptr<QObject> context_;
};

} // namespace kavor
