#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <filesystem>

namespace kavor {

// One client for each documents folder. A second one hands its URLs to the first and ends.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    // Takes the folder's lock where it is free.
    explicit SingleInstance(const std::filesystem::path& documents, QObject* parent = nullptr);

    [[nodiscard]] bool isFirst() const { return first_; }
    // From a second client: the first comes to the front and opens the URLs. False when it does not answer.
    bool handOver(const QStringList& urls) const;

signals:
    // A second client was started with these URLs, perhaps none.
    void startedAgain(const QStringList& urls);

private:
    void receive();

    QString name_;
    QLockFile lock_;
    QLocalServer server_;
    bool first_ = false;
};

} // namespace kavor
