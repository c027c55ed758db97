#pragma once

#include "base/AtomicFile.h"
#include "base/NotificationCenter.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "device/UserDefaults.h"
#include "device/keychain/KeychainStore.h"
#include "network/NetworkManager.h"
#include "orders/OrderDiskManager.h"
#include "resources/FontRegistry.h"
#include "resources/FontUpdater.h"
#include "resources/ImageCache.h"
#include "resources/PlainDownloader.h"
#include "resources/ResourceUpdateRun.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "session/services/SessionStore.h"
#include "shell/services/CatalogueUpdate.h"

#include <filesystem>
#include <memory>

namespace kavor {

// The client without its screens, put together once for every program: session and its files, credential, way
// to the server, order files, resources and the fetch of the catalogue. Each member stands after those that
// it uses; whoever adds screens or a console is destroyed before it. Needs an application object.
struct HeadlessCore {
    struct Settings {
        NetworkConfiguration configuration;
        std::unique_ptr<FontRegistry> fonts;    // takes the fonts that the catalogue brings
        std::unique_ptr<SessionStore> sessions; // that has begun to read; without one it is made here
    };

    // Makes the folders, mode 0700, and gives the session of the process its folders and its version.
    static atomic_file::Done openFolders(const std::filesystem::path& documents,
                                         const std::filesystem::path& caches);

    // Over the folders of the session, which are open.
    explicit HeadlessCore(Settings settings);
    HeadlessCore(const HeadlessCore&) = delete;
    HeadlessCore& operator=(const HeadlessCore&) = delete;
    ~HeadlessCore();

    AppSingleton& session = AppSingleton::shared();
    NotificationCenter& notifications = NotificationCenter::shared();
    const std::unique_ptr<SessionStore> sessions;
    SystemClock clock;
    QtReachability reachability;
    FileUserDefaults defaults;
    const std::unique_ptr<KeychainStore> keychain;
    AuthManager auth;
    NetworkManager network;
    OrderDiskManager orders;
    PlainDownloader downloader;
    ImageCache images;
    const std::unique_ptr<FontRegistry> fonts;
    FontUpdater fontUpdater;
    ResourceUpdateRun resources;
    BackgroundWorkEnd backgroundWork;
    CatalogueUpdate catalogue;
};

} // namespace kavor
