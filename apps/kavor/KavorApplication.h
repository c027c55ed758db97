#pragma once

#include "kavor/KavorOptions.h"
#include "network/records/NetworkConfiguration.h"

#include <QObject>

#include <memory>
#include <optional>

class QQuickWindow;

namespace kavor {

class AlertPresenter;
class AppDelegate;
class LogFile;
class PhotoLibraryViewController;
class RootController;
class ServiceOperations;
struct Placemark;
class SessionStore;

// The client, put together: session, device, network, services, screens and the window. One at a time, after
// the application object. Session and drafts stay what they are for the process.
class KavorApplication : public QObject {
    Q_OBJECT
public:
    // Prepares the process before its application object is made: names, and how the window draws.
    static void prepareProcess();
    // The configuration that the options name, or the embedded one; the error names file and key.
    static tl::expected<NetworkConfiguration, std::string> loadConfiguration(const KavorOptions& options);

    // Begins to read the session's files, which takes its time, while everything else is made; may be called
    // before there is an application object.
    static std::unique_ptr<SessionStore> beginReading(const KavorOptions& options);

    // Makes the folders, mode 0700. The first form takes over what beginReading gave.
    KavorApplication(const KavorOptions& options, NetworkConfiguration configuration,
                     std::unique_ptr<SessionStore> sessions);
    KavorApplication(const KavorOptions& options, NetworkConfiguration configuration);
    ~KavorApplication() override;

    // Shows the window and launches. False when the window's QML does not load.
    bool start();

    [[nodiscard]] QQuickWindow* window() const;
    [[nodiscard]] RootController& root();
    [[nodiscard]] AppDelegate& delegate();
    [[nodiscard]] AlertPresenter& alerts();
    [[nodiscard]] ServiceOperations& network();
    [[nodiscard]] PhotoLibraryViewController& photos();
    // No line of the log shows a password or token that the client knows from now on.
    void keepSecretsOutOf(LogFile& log);
    // Makes the client believe that there is no network, or ends that.
    void setOffline(bool offline);
    // Makes the client believe that the device stands there, or ends that.
    void setPlace(const std::optional<Placemark>& place);
    // Brings the window to the front and opens the URLs.
    void startedAgain(const QStringList& urls);

private:
    struct Parts;

    void openWindow();
    void rememberWindowSize();

    KavorOptions options_;
    std::unique_ptr<Parts> parts_;
};

} // namespace kavor
