#include "shell/services/HeadlessCore.h"

#include "base/BundleVersion.h"

#include <utility>

namespace kavor {

atomic_file::Done HeadlessCore::openFolders(const std::filesystem::path& documents,
                                            const std::filesystem::path& caches) {
    for (const auto& folder : {documents, caches}) {
        if (auto made = atomic_file::makeFolder(folder); !made)
            return made;
    }
    AppSingleton& session = AppSingleton::shared();
    session.version = bundleVersion();
    session.compilation = bundleCompilation();
    session.setFolders(documents, caches);
    return {};
}

HeadlessCore::HeadlessCore(Settings settings)
    : sessions(settings.sessions ? std::move(settings.sessions) : std::make_unique<SessionStore>(session))
    , defaults(session.documentsFolder() / "UserDefaults")
    , keychain(makeKeychain(session.documentsFolder()))
    , auth(*keychain, defaults, settings.configuration.urls.baseURLPro)
    , network(std::move(settings.configuration), {auth, reachability, clock})
    , orders(session.documentsFolder())
    , images(session.cachesFolder() / "Images", downloader)
    , fonts(std::move(settings.fonts))
    , fontUpdater(session.cachesFolder(), downloader, *fonts)
    , resources(images, fontUpdater, notifications)
    , catalogue({session, network, resources, *sessions, defaults, clock}) {}

HeadlessCore::~HeadlessCore() = default;

} // namespace kavor
