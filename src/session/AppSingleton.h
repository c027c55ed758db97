#pragma once

#include "catalogue/Catalogue.h"
#include "session/LoginResult.h"
#include "session/SectionIdentifier.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace kavor {

// The session of the whole process: who is logged in, the catalogue, the section entered. Main thread only.
class AppSingleton {
public:
    // The shared instance, made on first use and never released.
    static AppSingleton& shared();

    std::string version; // of the application, sent with every request
    std::string compilation;
    std::optional<LoginResult> loginResult;
    std::optional<std::string> userEmail;
    std::optional<std::string> userPassword;
    std::optional<std::string> storedAccount; // of the credential that the process started with
    std::optional<SectionIdentifier> actualSection;
    std::optional<ApplicationType> actualApplicationType;
    bool isSectionDigital = false;
    bool resettingBrochure = false;
    std::shared_ptr<const Catalogue> applicationInformation;
    std::optional<std::string> autoLoginUser;
    std::optional<std::string> autoLoginToken;
    std::optional<std::string> fcmToken;
    bool appendPromotionToMenu = false;

    // The catalogue; the process stops without one.
    [[nodiscard]] const Catalogue& catalogue() const;
    // The one way to change the catalogue (brands added by hand): copies it, lets the copy be changed, puts
    // it in place and has it stored. Whoever still holds the former one keeps it unchanged. A copy that was
    // made ahead, of this very catalogue, spares the time.
    void changeCatalogue(const std::function<void(Catalogue&)>& change,
                         std::shared_ptr<Catalogue> copy = nullptr);
    // Takes the former catalogue after each change and stores the one in place; set by what keeps the files.
    using CatalogueKeeper = std::function<void(std::shared_ptr<const Catalogue> former)>;
    void setCatalogueKeeper(CatalogueKeeper keeper) { catalogueKeeper_ = std::move(keeper); }

    // The kind of brochure of the section entered, none outside a brochure section.
    [[nodiscard]] std::optional<BrochureType> brochureType() const;

    // Where the application keeps its documents and its caches; set once by the composition root.
    [[nodiscard]] const std::filesystem::path& documentsFolder() const { return documentsFolder_; }
    [[nodiscard]] const std::filesystem::path& cachesFolder() const { return cachesFolder_; }
    void setFolders(std::filesystem::path documents, std::filesystem::path caches);

private:
    AppSingleton();

    CatalogueKeeper catalogueKeeper_;
    std::filesystem::path documentsFolder_;
    std::filesystem::path cachesFolder_;
};

} // namespace kavor
