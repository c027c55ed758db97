#include "session/AppSingleton.h"

#include "support/CatalogueBuilder.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

TEST(AppSingleton, AChangedCatalogueLeavesTheFormerOneToWhoeverHoldsIt) {
    auto& session = AppSingleton::shared();
    session.applicationInformation = CatalogueBuilder().take();
    const auto former = session.applicationInformation;
    Product own;
    own.id = -1;
    session.changeCatalogue([&](Catalogue& catalogue) { catalogue.addProduct(own); });
    EXPECT_NE(session.catalogue().product(-1), nullptr);
    EXPECT_EQ(former->product(-1), nullptr);
    session.applicationInformation.reset();
}

} // namespace
} // namespace kavor
