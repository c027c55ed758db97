#pragma once

#include "screens/pointofsale/PointOfSaleForm.h"
#include "textile/screens/TextileDesk.h"
#include "textile/screens/TextileStepViewController.h"

namespace kavor {

// The first step: the point of sale, the text to print and its typography.
class TextileConfigurationViewController : public kavor::TextileStepViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the section")
    Q_PROPERTY(kavor::PointOfSaleForm* customer READ customer CONSTANT)
    Q_PROPERTY(QString customText READ customText CONSTANT)
    // How many characters of how many; what is wrong with the text, empty while nothing is.
    Q_PROPERTY(QString customTextHelp READ customTextHelp NOTIFY customTextChanged)
    Q_PROPERTY(QString customTextError READ customTextError NOTIFY customTextChanged)
    Q_PROPERTY(kavor::TextileChoiceModel* typographies READ typographies CONSTANT)

public:
    explicit TextileConfigurationViewController(TextileDesk& desk, QObject* parent = nullptr);
    ~TextileConfigurationViewController() override;

    [[nodiscard]] QUrl view() const override;

    Q_INVOKABLE void editCustomText(const QString& text);
    Q_INVOKABLE void selectTypography(const QString& key);

    [[nodiscard]] PointOfSaleForm* customer() { return &customer_; }
    [[nodiscard]] QString customText() const;
    [[nodiscard]] QString customTextHelp() const;
    [[nodiscard]] QString customTextError() const;
    [[nodiscard]] TextileChoiceModel* typographies() { return &typographies_; }

signals:
    void customTextChanged();

private:
    void fillForm();
    void followEdits();
    void takeOver();
    void showTypographies();
    [[nodiscard]] std::optional<SaveTextileOrder::Customer> typed() const;
    [[nodiscard]] int characters() const;
    [[nodiscard]] int limit() const;

    TextileDesk& desk_;
    PointOfSaleForm customer_;
    TextileChoiceModel typographies_;
};

} // namespace kavor
