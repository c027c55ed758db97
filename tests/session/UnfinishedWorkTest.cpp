#include "session/UnfinishedWork.h"

#include "support/TemporaryFolder.h"
#include "textile/SaveTextileOrder.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

// A section whose draft is its record, all of one kind.
class UnfinishedClothing : public UnfinishedWork<SaveTextileOrder> {
public:
    UnfinishedClothing()
        : UnfinishedWork("clothing") {}

    // Opens the section: the draft that it has then.
    SaveTextileOrder& open() {
        draft = std::make_shared<SaveTextileOrder>();
        bringBack(onlyKind, [this](const SaveTextileOrder& order) {
            *draft = order;
            return !order.orderInformation.orderLines.empty();
        });
        return *draft;
    }
    void load(const SaveTextileOrder& order) {
        removeForLoading(onlyKind);
        draft = std::make_shared<SaveTextileOrder>(order);
    }
    std::shared_ptr<SaveTextileOrder> draft = std::make_shared<SaveTextileOrder>();
    bool sent = false;

protected:
    std::shared_ptr<const SaveTextileOrder> current() const override { return draft; }
    std::optional<SaveTextileOrder> recordOf(const SaveTextileOrder& order) const override {
        return sent ? std::nullopt : std::optional(order);
    }
    std::string broughtBack() const override { return "Se ha recuperado el pedido en curso"; }
};

class UnfinishedWorkTest : public testing::Test {
public:
    UnfinishedWorkTest() { AppSingleton::shared().setFolders(folder.path(), folder.path()); }
    ~UnfinishedWorkTest() override {
        BackgroundFileWriter::shared().flush();
        AppSingleton::shared().setFolders({}, {});
    }

    TemporaryFolder folder;
    UnfinishedClothing clothing;
};

TEST_F(UnfinishedWorkTest, WorkComesBackWithAWordSaidOnceAndIsGoneWhenItWasSent) {
    clothing.open().orderInformation.message = "Fiestas";
    clothing.write(*clothing.draft);
    clothing.open();
    EXPECT_EQ(clothing.takeWord(), "") << "nothing that the user would miss";
    clothing.draft->orderInformation.orderLines.push_back({7, 12});
    clothing.write(*clothing.draft);
    for (int death = 0; death < 2; ++death) { // nothing is written in between
        EXPECT_EQ(clothing.open().orderInformation.orderLines.front().quantity, 12U);
        EXPECT_EQ(clothing.takeWord(), "Se ha recuperado el pedido en curso");
        EXPECT_EQ(clothing.takeWord(), "");
    }
    clothing.write(*clothing.draft);
    clothing.removeAll();
    clothing.sent = true;
    clothing.write(*clothing.draft);
    EXPECT_TRUE(clothing.open().orderInformation.orderLines.empty());
    EXPECT_EQ(clothing.takeWord(), "");
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(UnfinishedWorkTest, ADraftThatIsNoLongerTheCurrentOneWritesNothingOverIt) {
    const auto former = clothing.draft;
    former->orderInformation.message = "La peña";
    clothing.write(*former);
    clothing.load(*former); // another draft of the same content
    clothing.draft->orderInformation.message = "El bar";
    clothing.write(*clothing.draft);
    former->orderInformation.message = "una respuesta tardía";
    clothing.write(*former);
    EXPECT_EQ(clothing.open().orderInformation.message, "El bar");
}

} // namespace
} // namespace kavor
