#include "session/services/SessionStore.h"

#include "base/StopProcess.h"
#include "catalogue/OwnBrand.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

class SessionStoreTest : public testing::Test {
public:
    SessionStoreTest() {
        session.loginResult.emplace().msg = "Hola";
        session.applicationInformation = CatalogueBuilder().take();
    }
    ~SessionStoreTest() override {
        session.setFolders({}, {});
        session.loginResult.reset();
        session.applicationInformation.reset();
    }
    static AppSingleton& openSession(const TemporaryFolder& folder) {
        AppSingleton::shared().setFolders(folder.path(), folder.path());
        return AppSingleton::shared();
    }
    void forget() {
        session.loginResult.reset();
        session.applicationInformation.reset();
    }

    TemporaryFolder folder;
    AppSingleton& session = openSession(folder);
    SessionStore sessions{session};
};

TEST_F(SessionStoreTest, ABrokenFileReadsAsAbsentAndTheLogNamesThePlace) {
    sessions.storeSession();
    folder.put("ZQLOGINRESULT", R"({"msg":1})");
    const LogCapture log;
    EXPECT_FALSE(sessions.restoreSession());
    EXPECT_FALSE(session.loginResult);
    EXPECT_TRUE(log.contains("ZQLOGINRESULT: msg: expected string, found integer"));
    EXPECT_EXIT(SessionStore(session).storeSession(), testing::ExitedWithCode(stoppedExitStatus),
                "loginResult");
}

TEST_F(SessionStoreTest, AChangeOfTheCatalogueIsStoredOwnBrandsWithTheirDescriptions) {
    OwnBrand cierva;
    cierva.name = "Cierva";
    cierva.description = "Turbia";
    session.changeCatalogue([&](Catalogue& all) { all.addProduct(cierva.product(all.brochures(), -1)); });
    sessions.storeSession();
    forget();
    SessionStore(session).restoreSession();
    ASSERT_TRUE(session.catalogue().product(-1));
    EXPECT_EQ(OwnBrand::of(*session.catalogue().product(-1)), cierva);

    SessionStore later(session);
    session.changeCatalogue([](Catalogue& all) { all.removeProductsOfProperty(OwnBrand::property); });
    later.flush(); // a kill asks for no storing
    forget();
    SessionStore(session).restoreSession();
    EXPECT_FALSE(session.catalogue().product(-1)) << "an erased brand came back";
    EXPECT_EQ(folder.content("ZQAPPLICATIONINFORMATION").find("Turbia"), std::string::npos);
}

// Storing is asked for in order and done in order: a large catalogue never wins over the one after it.
TEST_F(SessionStoreTest, TheCatalogueStoredLastStands) {
    for (Int brands = 2000; brands > 0; brands -= 400) {
        ApplicationInformation information = session.catalogue().information();
        information.products.assign(static_cast<std::size_t>(brands), information.products.front());
        auto former = std::exchange(session.applicationInformation,
                                    std::make_shared<const Catalogue>(std::move(information)));
        sessions.storeCatalogueInBackground(std::move(former));
    }
    sessions.flush();
    forget();
    sessions.storeCatalogueInBackground(nullptr); // without a catalogue nothing is written
    SessionStore(session).restoreSession();
    EXPECT_EQ(session.catalogue().information().products.size(), 400U);
}

} // namespace
} // namespace kavor
