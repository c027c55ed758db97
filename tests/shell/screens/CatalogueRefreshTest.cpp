#include "ShellFixture.h"
#include "catalogue/OwnBrand.h"
#include "support/CatalogueBuilder.h"

namespace kavor {
namespace {

class CatalogueRefresh : public ShellTest {
protected:
    static OwnBrand brand(const std::string& name) {
        return {ApplicationFather::orderBeer, name, "Turbia", 41, 22, 31, std::nullopt, std::nullopt};
    }
    void add(const std::string& name, Int id) {
        session.changeCatalogue(
            [&](Catalogue& all) { all.addProduct(brand(name).product(all.brochures(), id)); });
    }
    [[nodiscard]] std::vector<std::string> ownNames() const {
        std::vector<std::string> names;
        for (const Product& product : session.catalogue().ownBrands())
            names.push_back(product.name + ", " + product.description.value_or(""));
        return names;
    }
};

TEST_F(CatalogueRefresh, KeepsTheBrandsOfTheUsersOwnAlsoOneAddedWhileItRuns) {
    session.loginResult = rights();
    session.applicationInformation = CatalogueBuilder().take();
    add("Cierva", -1);
    add("Corza", -2);
    catalogue.start();
    CatalogueBuilder fresh;
    fresh.brand(13, "Haya");
    ASSERT_TRUE(network.requests.appInformation.succeed(fresh.take()));
    add("Tardía", -3); // the answer is there, and not yet in place
    ASSERT_TRUE(waitFor([&] { return session.catalogue().product(13) != nullptr; }));
    const std::vector<std::string> wanted{"Cierva, Turbia", "Corza, Turbia", "Tardía, Turbia"};
    EXPECT_EQ(ownNames(), wanted);
    EXPECT_EQ(session.catalogue().freeNegativeProductId(), -4);
    sessions.flush();
    SessionStore(session).restoreSession(); // what a kill would leave
    EXPECT_EQ(ownNames(), wanted);
}

} // namespace
} // namespace kavor
