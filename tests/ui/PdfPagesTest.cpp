#include "ui/PdfPages.h"

#include "UiScene.h"
#include "ui/PdfDocument.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace kavor {

namespace {

// Pages of half red paper, twice as high as wide.
QByteArray makePdf(int pages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(100, 200), QPageSize::Millimeter));
    writer.setPageMargins({});
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        painter.fillRect(0, 0, writer.width(), writer.height() / 2, Qt::red);
    }
    painter.end();
    return bytes;
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

bool reaches(const PdfPages& pages, PdfPages::State state) {
    return UiScene::waitFor([&] { return pages.state() == state; });
}

} // namespace

TEST(PdfPages, TellsThePagesOfADocumentAndFailsOnABrokenOne) {
    const QByteArray good = makePdf(3);
    struct Case {
        const char* what;
        QByteArray bytes;
        PdfPages::State state;
        int count;
    };
    for (const Case& c :
         {Case{"three pages", good, PdfPages::Ready, 3}, Case{"nothing", {}, PdfPages::Empty, 0},
          Case{"a picture", "\x89PNG and more", PdfPages::Failed, 0},
          Case{"a page of HTML", "<html><body>419</body></html>", PdfPages::Failed, 0},
          Case{"a head alone", good.left(40), PdfPages::Failed, 0}}) {
        PdfPages pages;
        pages.setBytes(c.bytes);
        EXPECT_TRUE(reaches(pages, c.state)) << c.what;
        EXPECT_EQ(pages.rowCount(), c.count) << c.what;
    }
    PdfPages pages;
    pages.setBytes(good);
    ASSERT_TRUE(reaches(pages, PdfPages::Ready));
    EXPECT_NEAR(pages.index(2).data(PdfPages::RatioRole).toReal(), 2.0, 0.02);
}

TEST(PdfPages, ShowsTheNewestDocumentAndMayGoWhileOneLoads) {
    PdfPages pages;
    {
        PdfPages leaving;
        leaving.setBytes(makePdf(40));
    }
    pages.setBytes(makePdf(5));
    pages.setBytes(makePdf(1));
    EXPECT_TRUE(reaches(pages, PdfPages::Ready));
    EXPECT_EQ(pages.count(), 1);
}

TEST(PdfPreview, DrawsThePageZoomsAndOffersToTryAgain) {
    QTemporaryDir folder;
    const QString path = folder.filePath("menu.pdf");
    write(path, "broken");
    UiScene scene(QStringLiteral("PdfPreview { objectName: \"pdf\"; anchors.fill: parent; source: \"%1\"\n"
                                 "onRetried: window.log = [\"retried\"] }")
                      .arg(QUrl::fromLocalFile(path).toString()));
    ASSERT_NE(scene.item("pdfErrorAction"), nullptr);
    write(path, makePdf(2));
    scene.click("pdfErrorAction");
    ASSERT_NE(scene.item("pdfPages"), nullptr);
    EXPECT_EQ(scene.log(), QStringList({"retried"}));
    const auto colourAt = [&scene](int x, int y) { return scene.window()->grabWindow().pixelColor(x, y); };
    EXPECT_TRUE(UiScene::waitFor([&] { return colourAt(512, 200) == QColor(Qt::red); }));

    const qreal narrow = scene.value("pdf", "pageWidth").toReal();
    scene.click("pdfZoomIn");
    EXPECT_GT(scene.value("pdf", "pageWidth").toReal(), narrow * 1.3);
    EXPECT_TRUE(UiScene::waitFor([&] { return colourAt(512, 200) == QColor(Qt::red); }));
    scene.click("pdfZoomOut");
    EXPECT_DOUBLE_EQ(scene.value("pdf", "pageWidth").toReal(), narrow);

    scene.wheel({500, 300}, 120, Qt::ControlModifier);
    EXPECT_NEAR(scene.value("pdf", "zoom").toReal(), 1.15, 0.01);
    scene.wheel({500, 300}, -120, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(scene.value("pdf", "zoom").toReal(), 1);
    scene.pinch({500, 300}, 100, 300);
    EXPECT_GT(scene.value("pdf", "zoom").toReal(), 1.8);
    scene.pinch({500, 300}, 300, 60);
    EXPECT_DOUBLE_EQ(scene.value("pdf", "zoom").toReal(), 1);
    EXPECT_TRUE(scene.warnings().isEmpty());
    // The software renderer never frees what its window shows at its end: let it show nothing.
    scene.item("pdf")->setProperty("source", QUrl());
    for (int frame = 0; frame < 5; ++frame) {
        UiScene::waitFor([&] { return colourAt(512, 200) != QColor(Qt::red); });
        PdfDocument::pool().waitForDone();
        QTest::qWait(20);
    }
}

} // namespace kavor
