#pragma once

#include "promotions/screens/EmailListModel.h"
#include "promotions/screens/PromotionFormatModel.h"
#include "promotions/screens/PromotionRoad.h"
#include "promotions/screens/PromotionServices.h"
#include "promotions/screens/PromotionValidityForm.h"
#include "screens/AttributeTableModel.h"
#include "screens/ScreenController.h"
#include "screens/VeilState.h"
#include "screens/WebPreviewViewController.h"
#include "screens/pointofsale/PointOfSaleForm.h"

#include <QStringList>

#include <memory>
#include <optional>

namespace kavor {

// The form of a promotion: to order it on its own, or to attach it to a menu, where it collects its
// attributes and days and sends nothing.
class PromotionViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the gallery")
    Q_PROPERTY(bool byMenuOrder READ isByMenuOrder CONSTANT)
    Q_PROPERTY(QString promotionName READ promotionName CONSTANT)
    Q_PROPERTY(QString brandName READ brandName CONSTANT)
    Q_PROPERTY(QString appendTitle READ appendTitle CONSTANT)
    Q_PROPERTY(kavor::PointOfSaleForm* customer READ customer CONSTANT)
    Q_PROPERTY(kavor::LogoForm* logo READ logo CONSTANT)
    Q_PROPERTY(bool imageLogoVisible READ isImageLogoVisible CONSTANT)
    Q_PROPERTY(kavor::AttributeTableModel* attributeTable READ attributeTable CONSTANT)
    Q_PROPERTY(kavor::PromotionFormatModel* formatTable READ formatTable CONSTANT)
    Q_PROPERTY(kavor::EmailListModel* emailTextFieldList READ emailTextFieldList CONSTANT)
    Q_PROPERTY(kavor::PromotionValidityForm* vigencia READ vigencia CONSTANT)
    Q_PROPERTY(bool vigenciaVisible READ isVigenciaVisible CONSTANT)
    Q_PROPERTY(QStringList languages READ languages CONSTANT)
    Q_PROPERTY(int language READ language NOTIFY languageChanged)
    Q_PROPERTY(QString freeTextForSupport READ freeTextForSupport CONSTANT)
    // The poster as it will be: its picture, and what is drawn on it; empty texts where there is nothing.
    Q_PROPERTY(QString posterImage READ posterImage NOTIFY languageChanged)
    Q_PROPERTY(QString posterPhrase READ posterPhrase NOTIFY posterChanged)
    Q_PROPERTY(QString posterPrice READ posterPrice NOTIFY posterChanged)
    Q_PROPERTY(QString posterHours READ posterHours NOTIFY posterChanged)
    Q_PROPERTY(QString posterLogo READ posterLogo NOTIFY posterChanged)
    // The same as one reads it out.
    Q_PROPERTY(QString posterText READ posterText NOTIFY posterChanged)
    // Names the order that the server took; empty before.
    Q_PROPERTY(QString sentText READ sentText NOTIFY sentChanged)
    Q_PROPERTY(bool sentDocumentVisible READ isSentDocumentVisible NOTIFY sentChanged)
    // That unfinished work came back; empty otherwise.
    Q_PROPERTY(QString recoveredMessage READ recoveredMessage CONSTANT)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    // The document on show over the form, null when there is none.
    Q_PROPERTY(kavor::WebPreviewViewController* preview READ preview NOTIFY previewChanged)

public:
    // The promotion belongs to the catalogue; with a use it is attached and not ordered.
    PromotionViewController(const PromotionServices& services, std::shared_ptr<const Catalogue> catalogue,
                            const PromotionTuple& promotionSelected,
                            std::optional<MenuPromotionUse> use = std::nullopt, QObject* parent = nullptr);
    ~PromotionViewController() override;

    // The view of the form.
    static QUrl view();
    void viewWillAppear() override;

    Q_INVOKABLE void chooseLanguage(int language);
    Q_INVOKABLE void editComment(const QString& text);
    Q_INVOKABLE void previewAction();
    Q_INVOKABLE void sendOrderAction();
    Q_INVOKABLE void showSentDocument();
    Q_INVOKABLE void appendByOrderAction();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] bool isByMenuOrder() const { return use_.has_value(); }
    [[nodiscard]] QString promotionName() const;
    [[nodiscard]] QString brandName() const;
    [[nodiscard]] QString appendTitle() const;
    [[nodiscard]] PointOfSaleForm* customer() { return &customer_; }
    [[nodiscard]] LogoForm* logo() { return &logo_; }
    [[nodiscard]] bool isImageLogoVisible() const;
    [[nodiscard]] AttributeTableModel* attributeTable() { return &attributeTable_; }
    [[nodiscard]] PromotionFormatModel* formatTable() { return &formatTable_; }
    [[nodiscard]] EmailListModel* emailTextFieldList() { return &emails_; }
    [[nodiscard]] PromotionValidityForm* vigencia() { return &vigencia_; }
    [[nodiscard]] bool isVigenciaVisible() const;
    [[nodiscard]] QStringList languages() const;
    [[nodiscard]] int language() const;
    [[nodiscard]] QString freeTextForSupport() const;
    [[nodiscard]] QString posterImage() const;
    [[nodiscard]] QString posterPhrase() const;
    [[nodiscard]] QString posterPrice() const;
    [[nodiscard]] QString posterHours() const;
    [[nodiscard]] QString posterLogo() const;
    [[nodiscard]] QString posterText() const;
    [[nodiscard]] QString sentText() const;
    [[nodiscard]] bool isSentDocumentVisible() const;
    [[nodiscard]] QString recoveredMessage() const { return recoveredMessage_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] WebPreviewViewController* preview() const { return preview_; }

signals:
    void languageChanged();
    void posterChanged();
    void sentChanged();
    void offlineChanged();
    void previewChanged();
    // The menu has the promotion.
    void attached();

private:
    enum class AttributeKind { phrase, price, choice, logo };

    void openDraft();
    void fillForms();
    void followEdits();
    void takeOver();
    void showPreview(const QUrl& document);
    void closePreview();
    [[nodiscard]] const AttributeTypes& types() const;
    [[nodiscard]] AttributeKind kindOf(const Attribute& attribute) const;
    [[nodiscard]] std::vector<Attribute> askedAttributes() const;
    [[nodiscard]] QStringList given(AttributeKind kind) const;

    PromotionServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    PromotionTuple promotionSelected_;
    std::optional<MenuPromotionUse> use_;
    std::shared_ptr<PromotionDraft> draft_;
    PromotionDraft opened_; // as the form came up
    QString recoveredMessage_;
    PointOfSaleForm customer_;
    LogoForm logo_;
    AttributeTableModel attributeTable_;
    PromotionFormatModel formatTable_;
    EmailListModel emails_;
    PromotionValidityForm vigencia_;
    VeilState veil_;
    std::unique_ptr<PromotionRoad> road_;
    WebPreviewViewController* preview_ = nullptr;
    bool isAttached_ = false;
};

} // namespace kavor
