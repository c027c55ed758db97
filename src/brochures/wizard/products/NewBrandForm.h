#pragma once

#include "catalogue/Catalogue.h"
#include "catalogue/OwnBrand.h"
#include "screens/PickerRows.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace kavor {

// The form by which a user adds a brand of the customer's own. The first row of each picker, "Sin
// seleccionar", means no choice.
class NewBrandForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the product step")
    Q_PROPERTY(QStringList brandTypologyList READ brandTypologyList CONSTANT)
    Q_PROPERTY(QStringList brandTasteList READ brandTasteList CONSTANT)
    Q_PROPERTY(QStringList brandSubTypologyList READ brandSubTypologyList CONSTANT)
    Q_PROPERTY(QStringList brandAgeList READ brandAgeList CONSTANT)
    Q_PROPERTY(QStringList brandSegmentList READ brandSegmentList CONSTANT)
    Q_PROPERTY(int typology MEMBER typology_ NOTIFY changed)
    Q_PROPERTY(int taste MEMBER taste_ NOTIFY changed)
    Q_PROPERTY(int subTypology MEMBER subTypology_ NOTIFY changed)
    Q_PROPERTY(int age MEMBER age_ NOTIFY changed)
    Q_PROPERTY(int segment MEMBER segment_ NOTIFY changed)
    Q_PROPERTY(QString name MEMBER name_ NOTIFY changed)
    Q_PROPERTY(QString description MEMBER description_ NOTIFY changed)
    Q_PROPERTY(int maximumNameLength READ maximumNameLength CONSTANT)
    Q_PROPERTY(int maximumDescriptionLength READ maximumDescriptionLength CONSTANT)

public:
    // Offers the vocabulary of one family.
    NewBrandForm(std::shared_ptr<const Catalogue> catalogue, ApplicationFather family, QObject* parent);

    [[nodiscard]] const QStringList& brandTypologyList() const { return typologies_.names(); }
    [[nodiscard]] const QStringList& brandTasteList() const { return tastes_.names(); }
    [[nodiscard]] const QStringList& brandSubTypologyList() const { return subTypologies_.names(); }
    [[nodiscard]] const QStringList& brandAgeList() const { return ages_.names(); }
    [[nodiscard]] const QStringList& brandSegmentList() const { return segments_.names(); }
    [[nodiscard]] int maximumNameLength() const;
    [[nodiscard]] int maximumDescriptionLength() const;
    [[nodiscard]] std::string name() const { return name_.trimmed().toStdString(); }

    // Whether typology, taste, segment and name are there.
    [[nodiscard]] bool isComplete() const;
    // The brand as filled in.
    [[nodiscard]] OwnBrand ownBrand() const;
    void clear();

signals:
    void changed();

private:
    template <class Record>
    [[nodiscard]] PickerRows vocabularyOf(const std::vector<Record>& records) const;

    std::shared_ptr<const Catalogue> catalogue_;
    ApplicationFather family_;
    PickerRows typologies_;
    PickerRows tastes_;
    PickerRows subTypologies_;
    PickerRows ages_;
    PickerRows segments_;
    int typology_ = 0;
    int taste_ = 0;
    int subTypology_ = 0;
    int age_ = 0;
    int segment_ = 0;
    QString name_;
    QString description_;
};

} // namespace kavor
