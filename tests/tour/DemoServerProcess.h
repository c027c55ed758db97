#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace kavor {

// The demonstration server as a process of its own, on a free port, with a folder of its own.
class DemoServerProcess {
public:
    // Starts it; throws std::runtime_error when it does not come up.
    explicit DemoServerProcess(const QString& folder, const QStringList& moreArguments = {});
    ~DemoServerProcess();
    DemoServerProcess(const DemoServerProcess&) = delete;
    DemoServerProcess& operator=(const DemoServerProcess&) = delete;

    [[nodiscard]] QString configurationFile() const { return configuration_; }
    [[nodiscard]] QString url() const { return url_; }
    // The account with all rights.
    [[nodiscard]] QString account() const { return account_; }
    [[nodiscard]] QString password() const { return password_; }

    // A plain GET from the server, for what a tour wants to look at itself.
    [[nodiscard]] QByteArray get(const QString& pathOrUrl) const;
    // Turns one of its switches for tests.
    void post(const QString& path, const QByteArray& json) const;

private:
    [[nodiscard]] QString nextLine();

    QProcess process_;
    QString configuration_;
    QString url_;
    QString account_;
    QString password_;
};

} // namespace kavor
