#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "screens/PickerRows.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kavor {

class AlertPresenter;

// What is produced: paper, digital, QR material, and how the menu is laid out.
class BrochureFormatsForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the configuration step")
    Q_PROPERTY(bool paperVisible READ isPaperVisible CONSTANT)
    Q_PROPERTY(QString papeBrochureLabel READ papeBrochureLabel CONSTANT)
    Q_PROPERTY(bool paperOn READ isPaperOn NOTIFY switchesChanged)
    Q_PROPERTY(bool digitalVisible READ isDigitalVisible CONSTANT)
    Q_PROPERTY(bool digitalOn READ isDigitalOn NOTIFY switchesChanged)
    Q_PROPERTY(bool demandOn READ isDemandOn NOTIFY switchesChanged)
    Q_PROPERTY(bool includeQrVisible READ isIncludeQrVisible CONSTANT)
    Q_PROPERTY(bool includeQrOn READ isIncludeQrOn NOTIFY switchesChanged)
    Q_PROPERTY(QString messageQrSupportLabel READ messageQrSupportLabel CONSTANT)
    Q_PROPERTY(bool formatRowsEnabled READ isPaperOn NOTIFY switchesChanged)
    Q_PROPERTY(bool menuFormatVisible READ isMenuFormatVisible CONSTANT)
    Q_PROPERTY(QStringList menuFormats READ menuFormats CONSTANT)
    Q_PROPERTY(int menuFormat READ menuFormat NOTIFY formatsChanged)
    Q_PROPERTY(bool wineFormatVisible READ isWineFormatVisible CONSTANT)
    Q_PROPERTY(QStringList wineFormats READ wineFormats CONSTANT)
    Q_PROPERTY(int wineFormat READ wineFormat NOTIFY formatsChanged)

public:
    // The alerts outlive the form.
    explicit BrochureFormatsForm(const WizardStepContext& context, QObject* parent = nullptr);

    void load();
    // What can't be seen has a fixed state: the paper brochure is on, a digital one that isn't on offer is
    // off. The working values keep what the user chose elsewhere.
    void serialize();

    Q_INVOKABLE void switchPaperBrochure(bool on);
    Q_INVOKABLE void switchDigitalBrochure(bool on);
    Q_INVOKABLE void switchDigitalBrochureDemand(bool on);
    Q_INVOKABLE void switchIncludeQr(bool on);
    Q_INVOKABLE void chooseMenuFormat(int row);
    Q_INVOKABLE void chooseWineFormat(int row);

    [[nodiscard]] bool isPaperVisible() const { return context_.parameters().allowNotSelectPaperBrouchure; }
    [[nodiscard]] QString papeBrochureLabel() const;
    [[nodiscard]] bool isPaperOn() const;
    [[nodiscard]] bool isDigitalVisible() const { return context_.parameters().allowSelectDigitalBrochure; }
    [[nodiscard]] bool isDigitalOn() const;
    [[nodiscard]] bool isDemandOn() const;
    [[nodiscard]] bool isIncludeQrVisible() const;
    [[nodiscard]] bool isIncludeQrOn() const;
    [[nodiscard]] QString messageQrSupportLabel() const;
    [[nodiscard]] bool isMenuFormatVisible() const { return context_.parameters().withMenuFormat; }
    [[nodiscard]] const QStringList& menuFormats() const { return menuFormats_.names(); }
    [[nodiscard]] int menuFormat() const;
    [[nodiscard]] bool isWineFormatVisible() const { return context_.parameters().withMenuFormatWine; }
    [[nodiscard]] const QStringList& wineFormats() const { return wineFormats_.names(); }
    [[nodiscard]] int wineFormat() const;

signals:
    void switchesChanged();
    void formatsChanged();
    // The draft has a new choice.
    void edited();

private:
    void switched();
    void tellAboutDemand();

    const WizardStepContext& context_;
    PickerRows menuFormats_;
    PickerRows wineFormats_;
};

} // namespace kavor
