#include "session/UnfinishedWork.h"

#include "sellingsheets/SellingSheetOrder.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"
#include "textile/SaveTextileOrder.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

using Names = std::set<std::string>;

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

// A section whose form is more than its record, with a kind for each style of sheet.
struct SheetForm {
    SellingSheetOrder sheet;
    bool scrolledDown = true;
};
class UnfinishedSheets : public UnfinishedWork<SellingSheetOrder, SheetForm> {
public:
    UnfinishedSheets()
        : UnfinishedWork("sheet") {}

    // The title of the sheet that comes back in the section of a style.
    std::string open(Int style) {
        form = std::make_shared<SheetForm>();
        form->sheet.styleIdentifier = style;
        bringBack(kindOf(form->sheet), [this](const SellingSheetOrder& sheet) {
            form->sheet = sheet;
            return true;
        });
        return form->sheet.title;
    }
    std::shared_ptr<SheetForm> form = std::make_shared<SheetForm>();

protected:
    std::shared_ptr<const SheetForm> current() const override { return form; }
    std::optional<SellingSheetOrder> recordOf(const SheetForm& each) const override { return each.sheet; }
    std::string kindOf(const SellingSheetOrder& sheet) const override {
        return "style" + std::to_string(sheet.styleIdentifier);
    }
    std::string faultOf(const SellingSheetOrder& sheet) const override {
        return sheet.items.empty() ? "" : "a module of a catalogue that is gone";
    }
    std::string broughtBack() const override { return "Se ha recuperado la hoja en curso"; }
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
    UnfinishedSheets sheets;
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

TEST_F(UnfinishedWorkTest, SectionsAndTheirKindsDoNotMix) {
    clothing.draft->orderInformation.message = "Fiestas";
    clothing.write(*clothing.draft);
    for (const Int style : {1, 2}) {
        EXPECT_EQ(sheets.open(style), "");
        sheets.form->sheet.title = "Hoja " + std::to_string(style);
        sheets.write(*sheets.form);
    }
    EXPECT_EQ(sheets.open(1), "Hoja 1");
    EXPECT_EQ(folder.names(), (Names{"clothing", "sheet.recovery", "sheet.style2"}));
    sheets.removeAll();
    EXPECT_EQ(sheets.open(1), "");
    EXPECT_EQ(sheets.open(2), "Hoja 2");
    EXPECT_EQ(clothing.open().orderInformation.message, "Fiestas");
}

TEST_F(UnfinishedWorkTest, WhatCantBeReadOrLoadedIsSetAsideAndNamed) {
    const LogCapture log;
    folder.put("clothing", R"({"save":true,"order":{"message":7}})");
    EXPECT_TRUE(clothing.open().orderInformation.message.empty());
    sheets.form->sheet.items.emplace_back();
    sheets.write(*sheets.form);
    EXPECT_EQ(sheets.open(0), "");
    EXPECT_EQ(folder.names(), (Names{"clothing.unreadable", "sheet.unreadable"}));
    EXPECT_EQ(log.startingWith("clothing: order."), 1);
    EXPECT_TRUE(log.contains("sheet: a module of a catalogue that is gone"));
}

} // namespace
} // namespace kavor
