#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "shell/screens/PhotoLibraryViewController.h"
#include "support/DeviceFakes.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <QDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace kavor {
namespace {

class PhotoLibrary : public ::testing::Test {
protected:
    TemporaryFolder folder;
    AlertPresenter alerts;
    MemoryUserDefaults defaults;
    ManualClock clock;
    PhotoLibraryViewController library{alerts, defaults, clock};
    QObject step; // that asks
    std::optional<std::optional<QImage>> answer;

    void SetUp() override {
        QImage image(6, 3, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(path("logo nº 1 #.png"));
        put(folder / "roto.png", "no picture");
        std::filesystem::create_directories(folder / "fotos");
        defaults.setString(PhotoLibraryViewController::folderKey, path(""));
        pick();
    }
    void pick() {
        answer.reset();
        EXPECT_TRUE(library.pick(&step, [this](const std::optional<QImage>& photo) { answer = photo; }));
    }
    [[nodiscard]] QString path(const char* name) const { return QString::fromStdString(folder / name); }
    void tap(const char* name) { library.open(QUrl::fromLocalFile(path(name))); }
    void open(const char* name) {
        clock.advance(std::chrono::seconds(1));
        tap(name);
    }
    [[nodiscard]] QString folderName() const { return QDir(library.folder().toLocalFile()).dirName(); }
};

TEST_F(PhotoLibrary, HandsOverTheChosenPhotoAndCloses) {
    EXPECT_TRUE(library.isVisible());
    open("logo nº 1 #.png");
    open("roto.png"); // a second tap while the first is read
    ASSERT_TRUE(waitFor([&] { return answer.has_value(); }));
    EXPECT_EQ(answer->value().size(), QSize(6, 3));
    EXPECT_FALSE(library.isVisible());
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(PhotoLibrary, NamesAFileThatCannotBeReadAndStaysOpen) {
    open("roto.png");
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alerts.text(), "No se puede leer la imagen \"roto.png\".");
    EXPECT_TRUE(library.isVisible());
    EXPECT_FALSE(answer);
    alerts.answerButton(0);
    std::filesystem::resize_file(folder / "roto.png", std::uintmax_t(largestPhotoFile) + 1);
    open("roto.png");
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alerts.text(), "La imagen \"roto.png\" es demasiado grande.");
}

TEST_F(PhotoLibrary, CancellingChangesNothingAlsoWhileAFileIsRead) {
    open("logo nº 1 #.png");
    library.cancel();
    EXPECT_FALSE(library.isVisible());
    ASSERT_TRUE(answer);
    EXPECT_FALSE(*answer);
    pick();
    open("roto.png"); // its reading ends after that of the first
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_FALSE(answer);
    EXPECT_TRUE(library.isVisible());
}

TEST_F(PhotoLibrary, OpensInTheFolderInWhichTheUserWasLast) {
    open("fotos");
    EXPECT_EQ(folderName(), "fotos");
    library.cancel();
    pick();
    EXPECT_EQ(folderName(), "fotos");
    library.goUp();
    EXPECT_EQ(library.folder(), QUrl::fromLocalFile(QDir::cleanPath(path(""))));
    open("fotos");
    library.cancel();
    std::filesystem::remove(folder / "fotos");
    pick();
    EXPECT_NE(folderName(), "fotos");
    EXPECT_TRUE(QFileInfo(library.folder().toLocalFile()).isDir());
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(PhotoLibrary, TheSecondPressOfADoubleClickHitsNothing) {
    tap("roto.png"); // the button that opened the library was pressed twice
    EXPECT_FALSE(library.isReading());
    open("fotos");
    tap("roto.png"); // what has come under the finger
    EXPECT_FALSE(library.isReading());
    open("roto.png");
    EXPECT_TRUE(library.isReading());
}

TEST_F(PhotoLibrary, ClosesWithWhoeverAskedForThePhoto) {
    library.cancel();
    auto asking = std::make_unique<QObject>();
    int answers = 0;
    library.pick(asking.get(), [&](const std::optional<QImage>&) { ++answers; });
    asking.reset();
    EXPECT_FALSE(library.isVisible());
    EXPECT_EQ(answers, 0);
}

} // namespace
} // namespace kavor
