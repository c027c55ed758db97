#include "shell/AppSingleton.h"

#include "base/StopProcess.h"
#include "support/CatalogueBuilder.h"
#include "support/LogCapture.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

class Session : public testing::Test {
public:
    Session() {
        session().setFolders(folder.path(), folder.path());
        session().loginResult.emplace().msg = "Hola";
        CatalogueBuilder catalogue;
        catalogue.information.brochures.reset();
        session().applicationInformation = catalogue.take();
    }
    ~Session() override {
        session().setFolders({}, {});
        session().loginResult.reset();
        session().applicationInformation.reset();
    }
    static AppSingleton& session() { return AppSingleton::shared(); }

    ScratchFolder folder;
};

TEST_F(Session, ComesBackFromItsFiles) {
    session().loginResult->showBeerBrochures = false;
    session().loginResult->notifications = {{"Aviso", {}, "a.png"}};
    session().storeSession();
    session().loginResult.reset();
    session().applicationInformation.reset();
    EXPECT_TRUE(session().restoreSession());
    EXPECT_EQ(session().loginResult->msg, "Hola");
    EXPECT_EQ(session().loginResult->showBeerBrochures, false);
    EXPECT_EQ(session().loginResult->showFlyer, std::nullopt);
    EXPECT_EQ(session().loginResult->notifications->front().image, "a.png");
    EXPECT_EQ(session().catalogue().product(10)->name, "Roble");
}

TEST_F(Session, ABrokenFileReadsAsAbsentAndTheLogNamesThePlace) {
    session().storeSession();
    folder.put("ZQLOGINRESULT", R"({"msg":1})");
    const LogCapture log;
    EXPECT_FALSE(session().restoreSession());
    EXPECT_EQ(session().loginResult.has_value(), false);
    EXPECT_TRUE(log.contains("ZQLOGINRESULT: msg: expected string, found integer"));
    EXPECT_EXIT(session().storeSession(), testing::ExitedWithCode(stoppedExitStatus), "loginResult");
}

TEST_F(Session, AChangedCatalogueLeavesTheFormerOneToWhoeverHoldsIt) {
    const auto former = session().applicationInformation;
    Product own;
    own.id = -1;
    session().catalogueToChange().addProduct(own);
    EXPECT_NE(session().catalogue().product(-1), nullptr);
    EXPECT_EQ(former->product(-1), nullptr);
}

} // namespace
} // namespace kavor
