#pragma once

#include "base/NotificationCenter.h"
#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/style/BrandQrForm.h"
#include "brochures/wizard/style/BrochureQuantityForm.h"
#include "brochures/wizard/style/StyleAttributesModel.h"
#include "brochures/wizard/style/StyleContext.h"
#include "brochures/wizard/style/StyleLogosForm.h"
#include "screens/covers/CoverGallery.h"

#include <vector>

namespace kavor {

// Step 1: the graphic style, for the printed or for the online brochure (AppSingleton.isSectionDigital), with
// its logos, the number of brochures, the attributes that the style asks for, and the QR material.
class BrochureStyleSelectorViewController : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(kavor::CoverGallery* gallery READ gallery CONSTANT)
    Q_PROPERTY(kavor::StyleLogosForm* logos READ logos CONSTANT)
    Q_PROPERTY(kavor::BrochureQuantityForm* quantities READ quantities CONSTANT)
    Q_PROPERTY(kavor::BrandQrForm* brandQr READ brandQr CONSTANT)
    Q_PROPERTY(kavor::StyleAttributesModel* attributeTable READ attributeTable CONSTANT)
    Q_PROPERTY(bool isSectionStyleDigital READ isSectionStyleDigital CONSTANT)
    // Why there is no style; empty when there are styles.
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY currentStyleChanged)
    Q_PROPERTY(bool preferredBrandWarningBannerVisible READ isBannerVisible NOTIFY bannerChanged)

public:
    BrochureStyleSelectorViewController(const WizardStepContext& context, QObject* parent);
    ~BrochureStyleSelectorViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;
    [[nodiscard]] bool wantsBanner() const override { return true; }

    Q_INVOKABLE void zoomStyleQrButtonAction();
    Q_INVOKABLE void bannerCloseAction();

    [[nodiscard]] CoverGallery* gallery() { return &gallery_; }
    [[nodiscard]] StyleLogosForm* logos() { return &logos_; }
    [[nodiscard]] BrochureQuantityForm* quantities() { return &quantities_; }
    [[nodiscard]] BrandQrForm* brandQr() { return &brandQr_; }
    [[nodiscard]] StyleAttributesModel* attributeTable() { return &attributeTable_; }
    [[nodiscard]] bool isSectionStyleDigital() const { return context_.isSectionStyleDigital; }
    [[nodiscard]] QString emptyMessage() const;
    [[nodiscard]] bool isBannerVisible() const { return bannerVisible_; }

signals:
    void currentStyleChanged();
    void bannerChanged();

private:
    void readStyles();
    void selectStyle(int index);
    void saveDraft();
    [[nodiscard]] const Brochures::Style* styleAt(int index) const;
    [[nodiscard]] bool isOffered(const Brochures::Style& style) const;
    void showPreferredBrandsBanner();

    StyleContext context_;
    std::vector<const Brochures::Style*> brochureStyles_; // on offer, in display order
    CoverGallery gallery_;
    StyleLogosForm logos_;
    BrochureQuantityForm quantities_;
    BrandQrForm brandQr_;
    StyleAttributesModel attributeTable_;
    bool bannerVisible_ = false;
    NotificationCenter::Subscription bannerObserver_;
};

} // namespace kavor
