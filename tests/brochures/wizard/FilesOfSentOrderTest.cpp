#include "brochures/engine/OrderToEdit.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "brochures/wizard/BrochureRoad.h"
#include "brochures/wizard/WizardFixture.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/SendIntent.h"

namespace kavor {
namespace {

using Directory = OrderDiskManager::DirectoryName;

// What becomes of the files of an order that the wizard sends.
class FilesOfSentOrder : public WizardTest {
protected:
    static constexpr auto print = OrderRequestType::sendToPrint;
    std::unique_ptr<BrochureRoad> road;

    void open() { road = std::make_unique<BrochureRoad>(services, BrochureIntermediateData::temporalBrochure()); }
    // The order of the draft in a file of the outbox, opened from there.
    void openFromOutbox() {
        completeDraft();
        KeptOrder kept{draft().makeOrder(print, false)};
        ASSERT_TRUE(orders.create(kept, Directory::outbox, "Sin enviar"));
        openOrder({kept, {}, {}, "Sin enviar"});
        draft().brochureTypeParameters = parametersOf(BrochureType::beer);
        open();
    }
    [[nodiscard]] std::optional<KeptOrder> waiting() const {
        return orders.retrieve<KeptOrder>("Sin enviar.zvo", Directory::outbox);
    }
    auto& sends() { return network.requests.saveOrder; }
    void sendNow() {
        road->sendToPrint();
        ASSERT_TRUE(waitFor([&] { return sends().waiting() > 0; }));
    }
    static SaveBrochuresOrderResponse taken() {
        SaveBrochuresOrderResponse answer;
        answer.urlOrder = Url{"http://server.example/orders/1"};
        return answer;
    }
};

TEST_F(FilesOfSentOrder, AfterPrintingTheDraftsFileIsNoDraftAnyMore) {
    completeDraft();
    draft().fileName = "Olmo";
    KeptOrder kept{draft().makeOrder(OrderRequestType::saveCloud, false)};
    ASSERT_TRUE(orders.create(kept, Directory::draft, "Olmo"));
    open();
    sendNow();
    sends().fail(lostAnswer());
    EXPECT_TRUE(orders.exists<KeptOrder>("Olmo", Directory::draft));
    sendNow();
    sends().succeed(taken());
    EXPECT_TRUE(waitFor([&] { return !orders.exists<KeptOrder>("Olmo", Directory::draft); }));

    // The name belongs to another bar's order by now.
    kept.menu.customer.name = "Bar Pino";
    ASSERT_TRUE(orders.create(kept, Directory::draft, "Olmo"));
    draft().sent.reset();
    sendNow();
    sends().succeed(taken());
    ASSERT_TRUE(QThreadPool::globalInstance()->waitForDone());
    EXPECT_TRUE(orders.exists<KeptOrder>("Olmo", Directory::draft));
}

TEST_F(FilesOfSentOrder, AnOrderOfTheOutboxLeavesItOnceItIsPrintedAndIsSentUnderOneKey) {
    openFromOutbox();
    draft().customerInformation->contact = "Berta";
    sendNow();
    ASSERT_TRUE(waiting());
    EXPECT_EQ(waiting()->menu.customer.contact, "Berta") << "what is sent stands in the file first";
    EXPECT_EQ(send_intent::keyInFile(*waiting()), std::get<1>(sends().calls.back()))
        << "and whoever sends the file after a death sends the same order";
    EXPECT_EQ(TemporalBrochure::shared().takeForOpening(BrochureType::beer)->outboxFile, "Sin enviar");
    sends().succeed(taken());
    EXPECT_TRUE(waitFor([&] { return !waiting(); }));
    EXPECT_FALSE(draft().outboxFile);
}

TEST_F(FilesOfSentOrder, QueueingAgainWritesTheSameFileAndSavingAsADraftLeavesIt) {
    openFromOutbox();
    network.reachable = false;
    draft().customerInformation->contact = "Berta";
    road->sendToPrint();
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(orders.list<KeptOrder>(Directory::outbox).size(), 1U);
    EXPECT_EQ(waiting()->menu.customer.contact, "Berta");
    press("Aceptar");
    draft().orderIdentifier = 41;
    road->saveAs();
    press("Guardar", "Olmo");
    ASSERT_TRUE(waitFor([&] { return orders.exists<KeptOrder>("Olmo", Directory::draft); }));
    EXPECT_TRUE(waiting());
    EXPECT_TRUE(waitFor([&] { return DraftsWithChanges::shared().names().contains("Olmo"); }));

    network.reachable = true;
    road->saveAs();
    press("Aceptar");
    press("Guardar", "Olmo");
    press("Sí");
    ASSERT_TRUE(waitFor([&] { return sends().waiting() > 0; }));
    sends().succeed({});
    EXPECT_TRUE(DraftsWithChanges::shared().names().empty());
}

TEST_F(FilesOfSentOrder, AWizardForAnOrderToEditDoesNotLookAtTheUnfinishedMenu) {
    completeDraft();
    draft().customerInformation->name = "Bar en curso";
    draft().openedAs = BrochureType::beer;
    TemporalBrochure::shared().write(draft());
    TemporalBrochure::shared().flush();
    BrochureIntermediateData::replaceTemporalBrochure();
    completeDraft();
    draft().openedAs = BrochureType::beer;
    EXPECT_FALSE(BrochureMenuViewController::isAnyOpen());
    {
        BrochureMenuViewController wizard(services, nullptr,
                                          BrochureMenuViewController::Opening::OrderToEdit);
        EXPECT_TRUE(BrochureMenuViewController::isAnyOpen());
        EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");
        EXPECT_TRUE(wizard.recoveredMessage().isEmpty());
    }
    EXPECT_FALSE(BrochureMenuViewController::isAnyOpen());
}

} // namespace
} // namespace kavor
