#pragma once

#include "base/NotificationCenter.h"
#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/style/BrandQrForm.h"
#include "brochures/wizard/style/BrochureQuantityForm.h"
#include "brochures/wizard/style/StyleAttributesModel.h"
#include "brochures/wizard/style/StyleCarouselModel.h"
#include "brochures/wizard/style/StyleContext.h"
#include "brochures/wizard/style/StyleLogosForm.h"
#include "brochures/wizard/style/StyleSelectorOrderSheet.h"

namespace kavor {

// Step 1: the graphic style, for the printed or for the online brochure (AppSingleton.isSectionDigital), with
// its logos, the number of brochures, the attributes that the style asks for, and the QR material.
class BrochureStyleSelectorViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::StyleCarouselModel* styles READ styles CONSTANT)
    Q_PROPERTY(kavor::StyleLogosForm* logos READ logos CONSTANT)
    Q_PROPERTY(kavor::BrochureQuantityForm* quantities READ quantities CONSTANT)
    Q_PROPERTY(kavor::BrandQrForm* brandQr READ brandQr CONSTANT)
    Q_PROPERTY(kavor::StyleAttributesModel* attributeTable READ attributeTable CONSTANT)
    Q_PROPERTY(kavor::StyleSelectorOrderSheet* zoom READ zoom NOTIFY zoomChanged)
    Q_PROPERTY(bool isSectionStyleDigital READ isSectionStyleDigital CONSTANT)
    Q_PROPERTY(int currentStyle READ currentStyle NOTIFY currentStyleChanged)
    Q_PROPERTY(QString currentStyleName READ currentStyleName NOTIFY currentStyleChanged)
    Q_PROPERTY(QString selectedAndTotalNumberOfStylesLabel READ selectedAndTotalNumberOfStylesLabel NOTIFY
                   currentStyleChanged)
    // Why there is no style; empty when there are styles.
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY currentStyleChanged)
    Q_PROPERTY(bool preferredBrandWarningBannerVisible READ isBannerVisible NOTIFY bannerChanged)

public:
    enum class TypeZooms { zoomStyle, zoomStyleQr };

    BrochureStyleSelectorViewController(const WizardStepContext& context, QObject* parent);
    ~BrochureStyleSelectorViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;
    [[nodiscard]] bool wantsBanner() const override { return true; }

    // The carousel, or the strip of miniatures, chose a style.
    Q_INVOKABLE void carouselCurrentItemIndexDidChange(int index);
    Q_INVOKABLE void flipStyleButtonAction();
    Q_INVOKABLE void zoomStyleButtonAction() { showZoom(TypeZooms::zoomStyle); }
    Q_INVOKABLE void zoomStyleQrButtonAction() { showZoom(TypeZooms::zoomStyleQr); }
    Q_INVOKABLE void closeZoom();
    Q_INVOKABLE void bannerCloseAction();

    [[nodiscard]] StyleCarouselModel* styles() { return &brochureStyles_; }
    [[nodiscard]] StyleLogosForm* logos() { return &logos_; }
    [[nodiscard]] BrochureQuantityForm* quantities() { return &quantities_; }
    [[nodiscard]] BrandQrForm* brandQr() { return &brandQr_; }
    [[nodiscard]] StyleAttributesModel* attributeTable() { return &attributeTable_; }
    [[nodiscard]] StyleSelectorOrderSheet* zoom() const { return zoom_; }
    [[nodiscard]] bool isSectionStyleDigital() const { return context_.isSectionStyleDigital; }
    [[nodiscard]] int currentStyle() const { return currentStyle_; }
    [[nodiscard]] QString currentStyleName() const;
    [[nodiscard]] QString selectedAndTotalNumberOfStylesLabel() const;
    [[nodiscard]] QString emptyMessage() const;
    [[nodiscard]] bool isBannerVisible() const { return bannerVisible_; }

signals:
    void currentStyleChanged();
    void zoomChanged();
    void bannerChanged();

private:
    void readStyles();
    void selectStyle(int index);
    void saveDraft();
    void showZoom(TypeZooms zoom);
    void showPreferredBrandsBanner();

    StyleContext context_;
    StyleCarouselModel brochureStyles_;
    StyleLogosForm logos_;
    BrochureQuantityForm quantities_;
    BrandQrForm brandQr_;
    StyleAttributesModel attributeTable_;
    StyleSelectorOrderSheet* zoom_ = nullptr;
    int currentStyle_ = 0;
    bool bannerVisible_ = false;
    NotificationCenter::Subscription bannerObserver_;
};

} // namespace kavor
