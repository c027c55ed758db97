#pragma once

#include "promotions/screens/PromotionGalleryModel.h"
#include "promotions/screens/PromotionServices.h"
#include "screens/PickerRows.h"
#include "screens/ScreenController.h"
#include "screens/ScreenStack.h"

#include <QVariantList>

#include <memory>
#include <optional>

namespace kavor {

// The gallery from which a promotion is chosen: narrowed by classification and brand, a picture opens the
// form.
class PromotionStyleSelectorViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)
    // What the way back is called.
    Q_PROPERTY(QString kavorLabel READ kavorLabel CONSTANT)
    // The entries of the two carousels: names, and {source, text} each.
    Q_PROPERTY(QStringList classifications READ classifications CONSTANT)
    Q_PROPERTY(QVariantList brandList READ brandList CONSTANT)
    Q_PROPERTY(int classification READ classification NOTIFY filterChanged)
    Q_PROPERTY(int brand READ brand NOTIFY filterChanged)
    Q_PROPERTY(kavor::PromotionGalleryModel* visiblePromotions READ visiblePromotions CONSTANT)
    // "12 promociones", "3 de 12 promociones".
    Q_PROPERTY(QString countText READ countText NOTIFY filterChanged)
    // Why there is nothing to see, and the button that helps; empty where it is not to be said.
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY filterChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY filterChanged)
    Q_PROPERTY(QString emptyAction READ emptyAction NOTIFY filterChanged)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    enum class Carousel { Classifications, Brands };
    Q_ENUM(Carousel)

    // With a use it is opened from a menu.
    explicit PromotionStyleSelectorViewController(const PromotionServices& services,
                                                  std::optional<MenuPromotionUse> use = std::nullopt,
                                                  QObject* parent = nullptr);
    ~PromotionStyleSelectorViewController() override;

    void viewWillAppear() override { covered_ = false; }

    Q_INVOKABLE void
    carouselCurrentItemIndexDidChange(kavor::PromotionStyleSelectorViewController::Carousel carousel,
                                      int index);
    Q_INVOKABLE void removeFilters();
    // Opens the form of a picture.
    Q_INVOKABLE void choosePromotion(int row);
    Q_INVOKABLE void closeSceneAction() { emit closed(); }

    [[nodiscard]] bool isByMenuOrder() const { return use_.has_value(); }
    [[nodiscard]] QString titleLabel() const;
    [[nodiscard]] QString kavorLabel() const;
    [[nodiscard]] QStringList classifications() const { return classifications_.names(); }
    [[nodiscard]] QVariantList brandList() const { return brandList_; }
    [[nodiscard]] int classification() const { return classification_; }
    [[nodiscard]] int brand() const { return brand_; }
    [[nodiscard]] PromotionGalleryModel* visiblePromotions() { return &visiblePromotions_; }
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString emptyTitle() const { return emptiness().title; }
    [[nodiscard]] QString emptyText() const { return emptiness().text; }
    [[nodiscard]] QString emptyAction() const { return emptiness().action; }
    [[nodiscard]] bool isOffline() const;

signals:
    void filterChanged();
    void offlineChanged();
    // The form, to be shown above; viewWillAppear says that it has closed.
    void screenRequested(const kavor::Screen& screen);

private:
    struct Emptiness {
        QString title;
        QString text;
        QString action;
    };

    [[nodiscard]] Emptiness emptiness() const;
    void fillCarousels();
    void filter();

    PromotionServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    std::optional<MenuPromotionUse> use_;
    PromotionGalleryModel visiblePromotions_;
    PickerRows classifications_{QStringLiteral("Todos")};
    PickerRows brands_{QStringLiteral("Todas")};
    QVariantList brandList_;
    int classification_ = 0;
    int brand_ = 0;
    bool covered_ = false; // a form is on show above
};

} // namespace kavor
