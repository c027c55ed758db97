#include "screens/AttributeTableModel.h"

#include "screens/PictureText.h"
#include "support/DeviceFakes.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <gtest/gtest.h>

namespace kavor {

namespace {

// The user takes a while to pick.
class SlowPhotoPicker : public PhotoPicker {
public:
    Callback answer;
    bool pick(QObject*, Callback callback) override {
        answer = std::move(callback);
        return true;
    }
};

void finishPhotos() {
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

const std::vector<AttributeRow::Type> types{{1, "texto", std::nullopt, std::nullopt, std::nullopt},
                                            {2, "imagen", std::nullopt, std::nullopt, "image"},
                                            {3, "precio", "9,99", "^[0-9]+([.,][0-9]+)?$", std::nullopt}};
const std::vector<Attribute> asked{{5, "Precio", 0, 3, {}}, {1, "Frase", 20, 1, {}}, {9, "Foto", 0, 2, {}}};

TEST(AttributeTableModel, AnswersWhatWasGivenInTheOrderOfTheRowsWithoutTheEmptyOnes) {
    FakePhotoPicker photos;
    std::string logo;
    AttributeTableModel table(
        photos, [&] { return logo; }, nullptr);
    int edits = 0;
    QObject::connect(&table, &AttributeTableModel::edited, [&] { ++edits; });
    table.ask(40, asked, types, {{1, "Caña y tapa", std::nullopt}, {77, "de antes", std::nullopt}});
    table.type(0, QStringLiteral("2,5o"));
    EXPECT_EQ(table.data(table.index(0), AttributeTableModel::ErrorRole),
              "El formato para este campo es 9,99");
    table.type(0, QStringLiteral("2,50"));
    EXPECT_EQ(table.data(table.index(0), AttributeTableModel::ErrorRole), "");
    photos.photo = QImage(1600, 400, QImage::Format_RGB32);
    table.switchImage(2, true);
    table.type(7, QStringLiteral("out of the list"));
    EXPECT_EQ(edits, 2) << "a photo is made small beside the window's thread";
    finishPhotos();
    EXPECT_EQ(edits, 3);
    const auto given = table.values();
    ASSERT_EQ(given.size(), 3U);
    EXPECT_EQ(given[0].attributeId, 5);
    EXPECT_EQ(given[0].value, "2,50");
    EXPECT_EQ(given[1].value, "Caña y tapa");
    const QByteArray png = QByteArray::fromStdString(*given[2].value).mid(qstrlen("data:image/png;base64,"));
    EXPECT_EQ(QImage::fromData(QByteArray::fromBase64(png)).size(), QSize(800, 200));
    logo = "data:image/png;base64,AAAA";
    table.switchImage(2, true);
    EXPECT_EQ(table.values()[2].value, logo) << "the bar's logo goes first";
    table.type(0, {});
    table.type(1, {});
    table.switchImage(2, false);
    EXPECT_TRUE(table.values().empty());
}

TEST(AttributeTableModel, AChoiceThatIsNoLongerOfferedIsNone) {
    FakePhotoPicker photos;
    AttributeTableModel table(
        photos, [] { return std::string(); }, nullptr);
    const std::vector<Attribute> hours{{5, "Franja", 0, 4, {{121, "Noche", 2}, {120, "Mediodía", 1}}}};
    table.ask(40, hours, types, {{5, "Mediodía", 120}});
    EXPECT_EQ(table.values().size(), 1U);
    table.ask(40, hours, types, {{5, "Desayuno", 119}});
    EXPECT_TRUE(table.values().empty()) << "nobody could see that it would be ordered";
}

TEST(AttributeTableModel, APictureThatComesWhenSomethingElseAsksChangesNothing) {
    SlowPhotoPicker photos;
    AttributeTableModel table(
        photos, [] { return std::string(); }, nullptr);
    table.ask(40, asked, types, {});
    table.switchImage(2, true);
    table.ask(41, asked, types, {});
    photos.answer(QImage(4, 4, QImage::Format_RGB32));
    finishPhotos();
    EXPECT_TRUE(table.values().empty());
}

TEST(AttributeTableModel, OfPicturesInTheMakingTheUsersLastWordCounts) {
    FakePhotoPicker photos;
    const auto pick = [&](AttributeTableModel& table, int side) {
        photos.photo = QImage(side, side, QImage::Format_RGB32);
        table.switchImage(2, true);
    };
    {
        AttributeTableModel gone(
            photos, [] { return std::string(); }, nullptr);
        gone.ask(40, asked, types, {});
        pick(gone, 2000);
    }
    AttributeTableModel table(
        photos, [] { return std::string(); }, nullptr);
    table.ask(40, asked, types, {});
    pick(table, 2000); // takes longer than the next one
    pick(table, 3);
    finishPhotos();
    ASSERT_EQ(table.values().size(), 1U);
    EXPECT_EQ(table.values()[0].value, picture_text::of(*photos.photo));
    for (const bool isRemoved : {true, false}) {
        pick(table, 5);
        isRemoved ? table.switchImage(2, false) : table.ask(41, asked, types, {});
        finishPhotos();
        EXPECT_TRUE(table.values().empty()) << isRemoved;
    }
}

TEST(PictureText, APictureOfAnyKindBecomesAPngAndWhatIsNoneBecomesNothing) {
    const std::string png = picture_text::of(QImage(3, 2, QImage::Format_RGB32));
    EXPECT_EQ(picture_text::asPng(png), png);
    const QByteArray bitmap = QByteArray("P6 2 1 255 ") + QByteArray(6, '\x7f');
    const std::string other = picture_text::asPng("data:image/ppm;base64," + bitmap.toBase64().toStdString());
    EXPECT_TRUE(other.starts_with("data:image/png;base64,")) << other;
    for (const char* none : {"", "no comma", "data:image/png;base64,AAAA", "data:image/jpeg;base64,"})
        EXPECT_EQ(picture_text::asPng(none), "") << none;
    EXPECT_EQ(picture_text::of(QImage()), "");
}

} // namespace
} // namespace kavor
