#pragma once

#include "catalogue/Catalogue.h"
#include "orders/OrderList.h"
#include "orders/screens/OrderMessageServices.h"
#include "screens/PickerRows.h"
#include "screens/messages/MessageFormController.h"

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

struct DemandBrandQrErrorResponse;

// What the server said about an order whose QR material is made again; what it left out, or what no order can
// be, is absent.
struct DemandedBrandQr {
    Int orderId = 0;
    std::optional<bool> canDemandQr;
    std::optional<OrderState> orderStateId;
    std::optional<QString> orderStateName;
};

// Asks to have the printed QR material of a sent order made again.
class DemandBrandQrController : public kavor::MessageFormController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the order list")
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)
    Q_PROPERTY(QStringList brandQrTypes READ brandQrTypes CONSTANT)
    Q_PROPERTY(bool typePickerVisible READ isTypePickerVisible CONSTANT)
    Q_PROPERTY(int brandQrTypePicker READ brandQrTypePicker NOTIFY changed)
    Q_PROPERTY(bool taco READ isTaco NOTIFY changed)
    Q_PROPERTY(QStringList tableQuantities READ tableQuantities CONSTANT)
    Q_PROPERTY(QStringList doorQuantities READ doorQuantities CONSTANT)
    Q_PROPERTY(QStringList tacoQuantities READ tacoQuantities CONSTANT)
    Q_PROPERTY(int brandQrQuantityTablePicker READ brandQrQuantityTablePicker NOTIFY changed)
    Q_PROPERTY(int brandQrQuantityDoorPicker READ brandQrQuantityDoorPicker NOTIFY changed)
    Q_PROPERTY(int brandQrQuantityTacoPicker READ brandQrQuantityTacoPicker NOTIFY changed)
    // The entries of the carousel on show: {source, text}.
    Q_PROPERTY(QVariantList brands READ brands NOTIFY brandsChanged)
    Q_PROPERTY(int currentBrand READ currentBrand NOTIFY changed)
    Q_PROPERTY(QString brandQrCarouselLabel READ brandQrCarouselLabel NOTIFY changed)
    // Why nothing can be sent; empty when it can.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    enum Quantity { Table, Door, Taco };
    Q_ENUM(Quantity)

    DemandBrandQrController(const OrderMessageServices& services, const OrderList::Order& order,
                            QObject* parent = nullptr);
    ~DemandBrandQrController() override;

    Q_INVOKABLE void chooseType(int row);
    Q_INVOKABLE void chooseQuantity(int quantity, int row);
    // The carousel on show was turned.
    Q_INVOKABLE void carouselCurrentItemIndexDidChange(int index);
    Q_INVOKABLE void sendDemandAction();
    Q_INVOKABLE void sendAction() override { sendDemandAction(); }

    [[nodiscard]] QString titleLabel() const;
    [[nodiscard]] QStringList brandQrTypes() const;
    [[nodiscard]] bool isTypePickerVisible() const { return withTaco_; }
    [[nodiscard]] int brandQrTypePicker() const { return type_; }
    [[nodiscard]] bool isTaco() const { return type_ == 1; }
    [[nodiscard]] QStringList tableQuantities() const { return quantities_[Table].names(); }
    [[nodiscard]] QStringList doorQuantities() const { return quantities_[Door].names(); }
    [[nodiscard]] QStringList tacoQuantities() const { return quantities_[Taco].names(); }
    [[nodiscard]] int brandQrQuantityTablePicker() const { return rows_[Table]; }
    [[nodiscard]] int brandQrQuantityDoorPicker() const { return rows_[Door]; }
    [[nodiscard]] int brandQrQuantityTacoPicker() const { return rows_[Taco]; }
    [[nodiscard]] QVariantList brands() const;
    [[nodiscard]] int currentBrand() const { return currentBrand_; }
    [[nodiscard]] QString brandQrCarouselLabel() const;
    [[nodiscard]] QString problem() const;

signals:
    void changed();
    void brandsChanged();
    // The server took the demand; the screen stays until the user has read so.
    void demanded(const kavor::DemandedBrandQr& answer);

private:
    void takeBrands();
    void takeQuantities();
    [[nodiscard]] BrandQrDemand demand() const;
    [[nodiscard]] Int chosen(Quantity quantity) const;
    void answered(const DemandBrandQrErrorResponse& answer);

    OrderList::Order order_;
    std::shared_ptr<const Catalogue> catalogue_;
    std::vector<Brochures::BrandQr> brandQrs_;
    PickerRows quantities_[3];
    bool withTaco_ = false;
    int type_ = 0;
    int rows_[3] = {0, 0, 0};
    int currentBrand_ = 0;
};

} // namespace kavor
