#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/configuration/BlackboardFormatModel.h"
#include "screens/PickerRows.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// What the format elements of a chalkboard tell.
class SelectFormatDelegate {
public:
    virtual ~SelectFormatDelegate() = default;
    virtual void formatSelected(qint64 identifier) = 0;
};

// The orientation and the type of a chalkboard.
class ChalkboardForm : public QObject, public SelectFormatDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the configuration step")
    Q_PROPERTY(bool orientationPaneVisible READ isOrientationPaneVisible CONSTANT)
    Q_PROPERTY(QAbstractItemModel* orientationElements READ orientationElements CONSTANT)
    Q_PROPERTY(QStringList blackboardTypes READ blackboardTypes CONSTANT)
    Q_PROPERTY(int blackboardType READ blackboardType NOTIFY changed)

public:
    // Looks into the context as long as it lives.
    explicit ChalkboardForm(const WizardStepContext& context, QObject* parent = nullptr);

    void load();
    // A chalkboard without a type gets the default one.
    void serialize();

    Q_INVOKABLE void chooseBlackboardType(int row);
    Q_INVOKABLE void formatSelected(qint64 identifier) override;

    // A chalkboard with formats on offer.
    [[nodiscard]] bool isOrientationPaneVisible() const;
    [[nodiscard]] QAbstractItemModel* orientationElements() { return &orientationElements_; }
    [[nodiscard]] const QStringList& blackboardTypes() const { return blackboardTypes_.names(); }
    [[nodiscard]] int blackboardType() const;

signals:
    void changed();
    // The draft has a new choice.
    void edited();

private:
    const WizardStepContext& context_;
    BlackboardFormatModel orientationElements_;
    PickerRows blackboardTypes_;
};

} // namespace kavor
