#include "sellingsheets/SheetRules.h"

#include "sellingsheets/SheetFixture.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace kavor {
namespace {

struct SheetRules : ::testing::Test {
    CatalogueBuilder builder;
    SellingSheetOrder sheet = completeSheet();

    SheetRules() { addSheets(builder); }
    [[nodiscard]] std::string text() const { return validationText(sheet, *builder.take()); }
};

constexpr char noTitle[] = "El título está vacío.\n";
constexpr char longTitle[] = "El título está vacío o se ha excedido el número de caracteres posibles.\n";

TEST_F(SheetRules, MessagesAccumulateInTheirOrder) {
    EXPECT_EQ(text(), "");
    sheet.title = "Verano";
    sheet.orderName = "";
    sheet.subtitle = "largo";
    sheet.fromDate = "2024-07-01";
    sheet.emailToSend1 = "";
    EXPECT_EQ(text(), std::string(longTitle) + "El nombre de la hoja está vacío.\n"
                                               "Subtítulo demasiado largo.\n"
                                               "La fecha de inicio es posterior a la de entrega.\n"
                                               "Introduce al menos una dirección de email.\n");
    sheet = completeSheet();
    sheet.title = "";
    EXPECT_EQ(text(), noTitle);
}

TEST_F(SheetRules, ALengthCountsWhatTheUserSeesAsCharacters) {
    sheet.title = "e\u0301e\u0301e\u0301🇪🇸🇪🇸"; // five, of thirty-one bytes
    sheet.subtitle = "ñññ👨‍👩‍👧";
    EXPECT_EQ(text(), "");
    sheet.title += "a";
    EXPECT_EQ(text(), longTitle);
}

TEST_F(SheetRules, DatesAreComparedAsTextsOnceBothAreThere) {
    sheet.fromDate = sheet.toDate;
    EXPECT_EQ(text(), "La fecha de inicio es igual a la de entrega.\n");
    sheet.fromDate = "9";
    EXPECT_EQ(text(), "La fecha de inicio es posterior a la de entrega.\n");
    sheet.toDate = "";
    EXPECT_EQ(text(), "");
    sheet.fromDate = "";
    EXPECT_EQ(text(), "");
}

TEST_F(SheetRules, AnUnsetAddressPassesWhereThreeEmptyOnesDoNot) {
    sheet.emailToSend1 = "";
    EXPECT_EQ(text(), "Introduce al menos una dirección de email.\n");
    sheet.emailToSend3.reset();
    EXPECT_EQ(text(), "");
}

TEST_F(SheetRules, ANewSheetTakesTheFirstStyleByPosition) {
    const auto made = newSheet(*builder.information.sellingSheet);
    EXPECT_EQ(made.styleIdentifier, 32);
    EXPECT_TRUE(made.isNRVLogoIncluded && !made.areTaxesIncluded && !made.showOneModulePerPage);
    EXPECT_EQ(validationText(made, *builder.take()), std::string(noTitle) +
                                                         "El nombre de la hoja está vacío.\n"
                                                         "Introduce al menos una dirección de email.\n");
}

TEST_F(SheetRules, ACopyIsASheetThatTheServerDoesNotKnow) {
    sheet.identifier = 5;
    sheet.orderToken = "t";
    sheet.createdAt = "ayer";
    sheet.PDFURL = Url{"/a.pdf"};
    sheet.distributionLogoURL = "/logo.png";
    const auto copy = copyOf(sheet);
    sheet.identifier = 0;
    sheet.orderToken = sheet.createdAt = "";
    sheet.PDFURL.reset();
    sheet.distributionLogoURL.reset();
    sheet.orderName = "A (copia)";
    EXPECT_EQ(copy, sheet);
}

TEST_F(SheetRules, ADraftOfATakenMomentGetsANumber) {
    std::set<std::string> taken;
    const auto name = [&] {
        return *taken
                    .insert(draftName({2024, 5, 6, 7, 8, 9},
                                      [&](const std::string& each) { return taken.contains(each); }))
                    .first;
    };
    EXPECT_EQ(name(), "2024-05-06-07-08-09");
    EXPECT_EQ(name(), "2024-05-06-07-08-09(1)");
    EXPECT_EQ(name(), "2024-05-06-07-08-09(2)");
}

TEST_F(SheetRules, ASheetHoldsUntilTheEndOfItsLastDay) {
    EXPECT_EQ(isInForce(sheet, "2024-06-30"), true);
    EXPECT_EQ(isInForce(sheet, "2024-07-01"), false);
    sheet.toDate = "";
    EXPECT_EQ(isInForce(sheet, "2024-07-01"), std::nullopt);
}

TEST_F(SheetRules, TheSheetInWorkComesBackWithTheNameOfItsDraft) {
    TemporaryFolder folder;
    AppSingleton::shared().setFolders(folder.path(), {});
    auto& unfinished = UnfinishedSheet::shared();
    StyleSingleton::shared() = {sheet, "2024-05-06-07-08-09"};
    unfinished.keep();
    StyleSingleton::shared() = {};
    EXPECT_TRUE(unfinished.open());
    EXPECT_EQ(StyleSingleton::shared().editingOrder, sheet);
    EXPECT_EQ(StyleSingleton::shared().orderFilename, "2024-05-06-07-08-09");
    EXPECT_EQ(unfinished.takeWord(), "Se ha recuperado la hoja en curso");
    StyleSingleton::shared() = {};
    EXPECT_TRUE(unfinished.open()) << "one that was not touched since comes back again";
    unfinished.removeAll();
    unfinished.flush();
    EXPECT_FALSE(unfinished.open());
    StyleSingleton::shared() = {};
    AppSingleton::shared().setFolders({}, {});
}

} // namespace
} // namespace kavor
