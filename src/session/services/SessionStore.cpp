#include "session/services/SessionStore.h"

#include "base/StopProcess.h"
#include "device/Background.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"

#include <sys/stat.h>

#include <future>
#include <string>
#include <utility>

namespace kavor {

SessionStore::Identity SessionStore::Identity::of(const std::filesystem::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0)
        return {};
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

SessionStore::SessionStore(AppSingleton& session)
    : session_(session)
    , folder_(session.documentsFolder()) {
    worker_.setMaxThreadCount(1);
    session_.setCatalogueKeeper(
        [this](std::shared_ptr<const Catalogue> former) { storeCatalogueInBackground(std::move(former)); });
}

SessionStore::~SessionStore() {
    session_.setCatalogueKeeper({});
    flush();
}

void SessionStore::flush() {
    worker_.waitForDone();
}

void SessionStore::run(std::function<void()> work) {
    startInPool(worker_, std::move(work));
}

void SessionStore::preload() {
    run([this] { static_cast<void>(load()); });
}

bool SessionStore::restoreSession() {
    const auto loaded = std::make_shared<std::promise<Session>>();
    run([this, loaded] { loaded->set_value(load()); });
    Session session = loaded->get_future().get();
    session_.loginResult = std::move(session.loginResult);
    session_.applicationInformation = std::move(session.catalogue);
    return session_.loginResult.has_value() && session_.applicationInformation != nullptr;
}

void SessionStore::storeSession() {
    if (!session_.applicationInformation)
        stopProcess("catalogue (applicationInformation) to store");
    run([this, catalogue = session_.applicationInformation] { writeCatalogue(catalogue); });
    if (session_.loginResult)
        run([this, login = *session_.loginResult] { writeLoginResult(login); });
    flush();
    if (!session_.loginResult)
        stopProcess("login result (loginResult) to store");
}

void SessionStore::storeInBackground() {
    if (session_.applicationInformation)
        run([this, catalogue = session_.applicationInformation] { writeCatalogue(catalogue); });
    if (session_.loginResult)
        run([this, login = *session_.loginResult] { writeLoginResult(login); });
}

void SessionStore::storeCatalogueInBackground(std::shared_ptr<const Catalogue> former) {
    run([this, catalogue = session_.applicationInformation, former = std::move(former)] {
        if (catalogue)
            writeCatalogue(catalogue);
    });
}

SessionStore::Session SessionStore::load() {
    const auto loginFile = folder_ / std::string(state_file::loginResult);
    if (const auto identity = Identity::of(loginFile); !loginResult_ || loginResult_->identity != identity)
        loginResult_ = {identity, state_file::read<LoginResult>(folder_, state_file::loginResult)};
    const auto catalogueFile = folder_ / std::string(state_file::applicationInformation);
    if (const auto identity = Identity::of(catalogueFile); !catalogue_ || catalogue_->identity != identity) {
        auto read = state_file::read<ApplicationInformation>(folder_, state_file::applicationInformation);
        catalogue_ = {identity, read ? std::make_shared<const Catalogue>(std::move(*read)) : nullptr};
    }
    return {loginResult_->value, catalogue_->value};
}

void SessionStore::writeCatalogue(const std::shared_ptr<const Catalogue>& catalogue) {
    const auto file = folder_ / std::string(state_file::applicationInformation);
    // A large file that holds this catalogue already stays as it is.
    if (catalogue_ && catalogue_->value == catalogue && catalogue_->identity == Identity::of(file))
        return;
    if (state_file::write(folder_, state_file::applicationInformation, catalogue->information()))
        catalogue_ = {Identity::of(file), catalogue};
}

void SessionStore::writeLoginResult(const LoginResult& loginResult) {
    if (state_file::write(folder_, state_file::loginResult, loginResult))
        loginResult_ = {Identity::of(folder_ / std::string(state_file::loginResult)), loginResult};
}

} // namespace kavor
