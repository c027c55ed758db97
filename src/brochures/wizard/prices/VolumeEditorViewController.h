#pragma once

#include "brochures/wizard/prices/PriceRow.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <vector>

namespace kavor {

class AlertPresenter;
struct WizardServices;

// Chooses the volume of the serving of one format, over the prices step.
class VolumeEditorViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the prices step")
    Q_PROPERTY(QString formatLabel READ formatLabel CONSTANT)
    Q_PROPERTY(QString quantityRangeLabel READ quantityRangeLabel CONSTANT)
    // The rows of the picker; the first one is "Vacío".
    Q_PROPERTY(QStringList volumePicker READ volumePicker CONSTANT)
    Q_PROPERTY(int selectedRow READ selectedRow WRITE setSelectedRow NOTIFY selectedRowChanged)

public:
    // Applies a choice (none for "Vacío"); answers whether it was taken.
    using ChangeVolumeHandler = std::function<bool(std::optional<Int>, const PriceRow&)>;

    // The upper end for a format that gives none.
    static constexpr Int maximumVolume = 999;
    static constexpr Int mostVolumes = 10'000; // a picker cannot show a catalogue's slip of the key

    VolumeEditorViewController(const WizardServices& services, QObject* parent);

    // Takes the row and preselects its volume.
    void edit(const PriceRow& product, ChangeVolumeHandler changeVolumeHandler);

    Q_INVOKABLE void confirm();
    Q_INVOKABLE void close();

    [[nodiscard]] QString formatLabel() const;
    [[nodiscard]] QString quantityRangeLabel() const;
    [[nodiscard]] QStringList volumePicker() const;
    [[nodiscard]] int selectedRow() const { return selectedRow_; }
    void setSelectedRow(int row);

signals:
    void selectedRowChanged();
    void closed();

private:
    AlertPresenter& alerts_;
    PriceRow product_;
    ChangeVolumeHandler changeVolumeHandler_;
    std::vector<Int> possibleVolumes_;
    int selectedRow_ = 0;
};

} // namespace kavor
