#include "brochures/wizard/prices/VolumeEditorViewController.h"

#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/WizardStep.h"
#include "interaction/AlertPresenter.h"

#include <algorithm>

namespace kavor {

VolumeEditorViewController::VolumeEditorViewController(const WizardServices& services, QObject* parent)
    : QObject(parent)
    , alerts_(services.alerts) {}

void VolumeEditorViewController::edit(const PriceRow& product, ChangeVolumeHandler changeVolumeHandler) {
    product_ = product;
    changeVolumeHandler_ = std::move(changeVolumeHandler);
    possibleVolumes_.clear();
    // Without a minimum there is nothing to count from.
    if (product.isVolumeEditable && product.minimumVolume) {
        const Int first = *product.minimumVolume;
        const Int last = product.maximumVolume.value_or(maximumVolume);
        for (Int volume = first; volume <= last && Int(possibleVolumes_.size()) < mostVolumes; ++volume)
            possibleVolumes_.push_back(volume);
    }
    const auto chosen =
        std::ranges::find(possibleVolumes_, product.volume, [](Int volume) { return std::optional(volume); });
    setSelectedRow(chosen == possibleVolumes_.end() ? 0 : int(chosen - possibleVolumes_.begin()) + 1);
}

QString VolumeEditorViewController::formatLabel() const {
    return fromUtf8(product_.brandName + " - " + product_.productName);
}

QString VolumeEditorViewController::quantityRangeLabel() const {
    if (!product_.minimumVolume)
        return {};
    QString range = QStringLiteral("Mín: %1 cl").arg(*product_.minimumVolume);
    if (product_.maximumVolume)
        range += QStringLiteral("     Máx: %1 cl").arg(*product_.maximumVolume);
    return range;
}

QStringList VolumeEditorViewController::volumePicker() const {
    QStringList rows{QStringLiteral("Vacío")};
    for (const Int volume : possibleVolumes_)
        rows << QStringLiteral("%1 cl").arg(volume);
    return rows;
}

void VolumeEditorViewController::setSelectedRow(int row) {
    if (row < 0 || row > int(possibleVolumes_.size()) || row == selectedRow_)
        return;
    selectedRow_ = row;
    emit selectedRowChanged();
}

void VolumeEditorViewController::confirm() {
    const std::optional<Int> volume =
        selectedRow_ > 0 ? std::optional(possibleVolumes_[std::size_t(selectedRow_) - 1]) : std::nullopt;
    if (changeVolumeHandler_ && changeVolumeHandler_(volume, product_))
        emit closed();
    else
        alerts_.inform(QStringLiteral("Atención"), QStringLiteral("No se ha podido guardar el cambio."),
                       this);
}

void VolumeEditorViewController::close() {
    emit closed();
}

} // namespace kavor
