#pragma once

#include "interaction/PendingRun.h"
#include "network/ServiceOperations.h"
#include "screens/ScreenController.h"
#include "screens/ScreenStack.h"
#include "screens/VeilState.h"
#include "screens/WebPreviewViewController.h"
#include "sellingsheets/screens/SellingSheetRoad.h"
#include "sellingsheets/screens/SellingSheetServices.h"
#include "sellingsheets/screens/SheetShelf.h"

#include <QDateTime>
#include <QString>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

struct Choice;

// The selling sheets: the drafts of the device and the sheets that the server has. The drafts stand without a
// network and whatever the server answers.
class SellingSheetOrderListManagerViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(kavor::SheetListModel* drafts READ drafts CONSTANT)
    Q_PROPERTY(kavor::SheetListModel* sent READ sent CONSTANT)
    Q_PROPERTY(QString draftsTitle READ draftsTitle CONSTANT)
    Q_PROPERTY(QString sentTitle READ sentTitle CONSTANT)
    // Why a section is empty: {icon, title, text, action}.
    Q_PROPERTY(QVariantMap draftsEmpty READ draftsEmpty NOTIFY emptyChanged)
    Q_PROPERTY(QVariantMap sentEmpty READ sentEmpty NOTIFY emptyChanged)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    // The document on show over the list, null when there is none.
    Q_PROPERTY(kavor::WebPreviewViewController* preview READ preview NOTIFY previewChanged)

public:
    using Draft = sheet_shelf::Draft;

    explicit SellingSheetOrderListManagerViewController(const SellingSheetServices& services,
                                                        QObject* parent = nullptr);
    ~SellingSheetOrderListManagerViewController() override;

    void viewWillAppear() override;

    Q_INVOKABLE void newSheetAction();
    // Of a draft, by its key.
    Q_INVOKABLE void openDraft(const QString& key);
    Q_INVOKABLE void sendDraft(const QString& key);
    Q_INVOKABLE void previewDraft(const QString& key);
    Q_INVOKABLE void copyDraft(const QString& key);
    Q_INVOKABLE void deleteDraft(const QString& key);
    // Of a sheet that was sent, by its key.
    Q_INVOKABLE void previewSent(const QString& key);
    Q_INVOKABLE void copySent(const QString& key);
    Q_INVOKABLE void deleteSent(const QString& key);
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] SheetListModel* drafts() { return &drafts_; }
    [[nodiscard]] SheetListModel* sent() { return &sent_; }
    [[nodiscard]] QString draftsTitle() const { return QStringLiteral("Hojas borrador"); }
    [[nodiscard]] QString sentTitle() const { return QStringLiteral("Hojas realizadas"); }
    [[nodiscard]] QVariantMap draftsEmpty() const;
    [[nodiscard]] QVariantMap sentEmpty() const;
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] WebPreviewViewController* preview() const { return preview_; }
    [[nodiscard]] const std::vector<SellingSheetOrder>& ordersFromServer() const { return ordersFromServer_; }
    [[nodiscard]] const std::vector<Draft>& ordersFromDisk() const { return ordersFromDisk_; }

signals:
    void emptyChanged();
    void offlineChanged();
    void previewChanged();
    // A copy was stored, and what is to be said of it.
    void copied(const QString& text);
    void screenRequested(const kavor::Screen& screen);

private:
    enum class Load { UnderWay, Answered, Offline, Failed };

    [[nodiscard]] const Draft* draftOf(const QString& key) const;
    [[nodiscard]] const SellingSheetOrder* sentOf(const QString& key) const;
    [[nodiscard]] bool hasCatalogue();
    void loadDrafts();
    void takeDrafts(sheet_shelf::Drafts drafts);
    void loadFromServer();
    void failed(const RequestFailure& failure);
    void setLoad(Load load);
    void showRows();
    void edit(SellingSheetOrder order, std::optional<std::string> filename);
    void openForm();
    bool isCopyAgain(const QString& key);
    void storeCopy(const SellingSheetOrder& sheet, const QString& said);
    void takeLogo(const SellingSheetOrder& sheet, const QByteArray& body, bool isComplete);
    void removeDraft(const std::string& filename);
    void cancelSent(const SellingSheetOrder& sheet);
    void showPreview(const QUrl& document);
    void closePreview();
    QObject* beginWait(const QString& text);
    void endWait();

    SellingSheetServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    SellingSheetRoad road_;
    std::vector<SellingSheetOrder> ordersFromServer_;
    std::vector<Draft> ordersFromDisk_;
    SheetListModel drafts_;
    SheetListModel sent_;
    VeilState veil_;
    PendingRun loading_;
    PendingRun wait_; // behind the veil
    Load load_ = Load::UnderWay;
    bool isLoadWanted_ = true;
    bool isUnfinishedLookedFor_ = false;
    bool isFaultTold_ = false;
    quint64 reading_ = 0; // tells the newest reading of the drafts from older ones
    WebPreviewViewController* preview_ = nullptr;
    QString copiedKey_; // of the last copy
    QDateTime copiedAt_;
};

} // namespace kavor
