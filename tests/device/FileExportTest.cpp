#include "device/FileExport.h"

#include "support/TemporaryFolder.h"

#include <QDesktopServices>
#include <QFile>
#include <QStringList>
#include <QUrl>

#include <gtest/gtest.h>

namespace kavor {
namespace {

// What would open files.
class FileOpener : public QObject {
    Q_OBJECT
public:
    FileOpener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~FileOpener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    QStringList opened;

public slots:
    void open(const QUrl& file) { opened << file.toLocalFile(); }
};

TEST(FilesForTheUser, AreStoredUnderAFreeNameAndOpened) {
    const TemporaryFolder folder;
    FileOpener opener;
    const QString downloads = QString::fromStdString(folder / "downloads");
    DownloadsExport files(downloads);
    const auto first = files.saveAndOpen(QStringLiteral("fiesta.1.ics"), "uno");
    const auto second = files.saveAndOpen(QStringLiteral("fiesta.1.ics"), "dos");
    EXPECT_EQ(first, downloads + QStringLiteral("/fiesta.1.ics"));
    EXPECT_EQ(second, downloads + QStringLiteral("/fiesta.1 (1).ics"));
    EXPECT_EQ(opener.opened, QStringList({*first, *second}));
    QFile kept(*first);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "uno");
    EXPECT_EQ(DownloadsExport(*first).saveAndOpen(QStringLiteral("x.ics"), "x"), std::nullopt);
}

} // namespace
} // namespace kavor

#include "FileExportTest.moc"
