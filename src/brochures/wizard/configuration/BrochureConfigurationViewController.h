#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/configuration/CustomerForm.h"
#include "catalogue/Brochures.h"
#include "interaction/VeiledRun.h"

#include <QAbstractItemModel>
#include <QQmlEngine>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace kavor {

class BlackboardFormatModel;
class BrochureIntermediateData;
class Catalogue;
class CustomerFieldModel;
struct Placemark;

// What the format elements of a chalkboard tell.
class SelectFormatDelegate {
public:
    virtual ~SelectFormatDelegate() = default;
    virtual void formatSelected(qint64 identifier) = 0;
};

// Step 0 of the wizard: the point of sale, the languages, the second price list and the form of the brochure.
// Every change goes into the draft and its temporary copy at once; the texts when their field is left.
class BrochureConfigurationViewController : public kavor::WizardStepViewController,
                                            public SerializeAutoSave,
                                            public SelectFormatDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")

    // The point of sale
    Q_PROPERTY(QString tevoLabel READ tevoLabel CONSTANT)
    Q_PROPERTY(QString tevoAviseLabel READ tevoAviseLabel CONSTANT)
    Q_PROPERTY(bool customerCodeRequired READ isCustomerCodeRequired CONSTANT)
    Q_PROPERTY(QString tevo READ tevo NOTIFY tevoChanged)
    Q_PROPERTY(QAbstractItemModel* contactFields READ contactFields CONSTANT)
    Q_PROPERTY(QAbstractItemModel* placeFields READ placeFields CONSTANT)
    Q_PROPERTY(QAbstractItemModel* onlineFields READ onlineFields CONSTANT)
    Q_PROPERTY(QAbstractItemModel* freeTextFields READ freeTextFields CONSTANT)
    Q_PROPERTY(QString freeTextLabel READ freeTextLabel CONSTANT)
    Q_PROPERTY(bool freeTextVisible READ isFreeTextVisible CONSTANT)
    Q_PROPERTY(QString imageLogo READ imageLogo NOTIFY logoChanged)
    Q_PROPERTY(QString attachLogoLabel READ attachLogoLabel NOTIFY logoChanged)

    // Languages and second price
    Q_PROPERTY(QStringList languages READ languages CONSTANT)
    Q_PROPERTY(int mainLanguage READ mainLanguage NOTIFY languagesChanged)
    Q_PROPERTY(bool secondLanguageVisible READ isSecondLanguageVisible CONSTANT)
    // "Ninguno" and what is not the main language.
    Q_PROPERTY(QStringList secondaryLanguages READ secondaryLanguages NOTIFY languagesChanged)
    Q_PROPERTY(int secondaryLanguage READ secondaryLanguage NOTIFY languagesChanged)
    Q_PROPERTY(bool secondPriceVisible READ isSecondPriceVisible CONSTANT)
    Q_PROPERTY(bool secondPriceAllowed READ isSecondPriceAllowed NOTIFY secondPriceChanged)
    Q_PROPERTY(QStringList priceTypes READ priceTypes CONSTANT)
    Q_PROPERTY(int priceType READ priceType NOTIFY secondPriceChanged)

    // Form of the brochure
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
    Q_PROPERTY(bool orientationPaneVisible READ isOrientationPaneVisible CONSTANT)
    Q_PROPERTY(QAbstractItemModel* orientationElements READ orientationElements CONSTANT)
    Q_PROPERTY(QStringList blackboardTypes READ blackboardTypes CONSTANT)
    Q_PROPERTY(int blackboardType READ blackboardType NOTIFY formatsChanged)

public:
    // The services outlive the step.
    BrochureConfigurationViewController(const WizardStepContext& context, QObject* parent);
    ~BrochureConfigurationViewController() override;

    [[nodiscard]] QUrl view() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void serializeAutoSave() override;

    // The text of a field, by the outlet's name, while it is typed and when the field is left.
    Q_INVOKABLE void editText(const QString& field, const QString& text);
    Q_INVOKABLE void finishText(const QString& field, const QString& text);
    Q_INVOKABLE void searchTEVOCodeAction();
    Q_INVOKABLE void locateDeviceAndFillFields();
    Q_INVOKABLE void searchLogoInGallery();
    Q_INVOKABLE void removeImageButonAction(); // spelt so in the screen's design
    Q_INVOKABLE void previewAction();

    // Pickers answer by their index.
    Q_INVOKABLE void chooseMainLanguage(int index);
    Q_INVOKABLE void chooseSecondaryLanguage(int index);
    Q_INVOKABLE void chooseSecondPrice(bool on);
    Q_INVOKABLE void choosePriceType(int index);
    Q_INVOKABLE void chooseMenuFormat(int index);
    Q_INVOKABLE void chooseWineFormat(int index);
    Q_INVOKABLE void chooseBlackboardType(int index);
    Q_INVOKABLE void formatSelected(qint64 identifier) override;
    Q_INVOKABLE void switchPaperBrochure(bool on);
    Q_INVOKABLE void switchDigitalBrochure(bool on);
    Q_INVOKABLE void switchDigitalBrochureDemand(bool on);
    Q_INVOKABLE void switchIncludeQr(bool on);

    [[nodiscard]] QString tevoLabel() const;
    [[nodiscard]] QString tevoAviseLabel() const;
    [[nodiscard]] bool isCustomerCodeRequired() const;
    [[nodiscard]] QString tevo() const { return form_.text("tevoTextField"); }
    [[nodiscard]] QString fieldText(const QString& field) const { return form_.text(field.toStdString()); }
    [[nodiscard]] QAbstractItemModel* contactFields() const;
    [[nodiscard]] QAbstractItemModel* placeFields() const;
    [[nodiscard]] QAbstractItemModel* onlineFields() const;
    [[nodiscard]] QAbstractItemModel* freeTextFields() const;
    [[nodiscard]] QString freeTextLabel() const;
    [[nodiscard]] bool isFreeTextVisible() const;
    [[nodiscard]] QString imageLogo() const;
    [[nodiscard]] QString attachLogoLabel() const;

    [[nodiscard]] const QStringList& languages() const { return languages_.names; }
    [[nodiscard]] int mainLanguage() const;
    [[nodiscard]] bool isSecondLanguageVisible() const { return parameters_.multiLanguage; }
    [[nodiscard]] QStringList secondaryLanguages() const;
    [[nodiscard]] int secondaryLanguage() const;
    [[nodiscard]] bool isSecondPriceVisible() const { return isSecondPriceTypeInputAllowed_; }
    [[nodiscard]] bool isSecondPriceAllowed() const;
    [[nodiscard]] const QStringList& priceTypes() const { return prices_.names; }
    [[nodiscard]] int priceType() const;

    [[nodiscard]] bool isPaperVisible() const { return parameters_.allowNotSelectPaperBrouchure; }
    [[nodiscard]] QString papeBrochureLabel() const;
    [[nodiscard]] bool isPaperOn() const;
    [[nodiscard]] bool isDigitalVisible() const { return parameters_.allowSelectDigitalBrochure; }
    [[nodiscard]] bool isDigitalOn() const;
    [[nodiscard]] bool isDemandOn() const;
    [[nodiscard]] bool isIncludeQrVisible() const;
    [[nodiscard]] bool isIncludeQrOn() const;
    [[nodiscard]] QString messageQrSupportLabel() const;
    [[nodiscard]] bool isMenuFormatVisible() const { return parameters_.withMenuFormat; }
    [[nodiscard]] const QStringList& menuFormats() const { return menuFormats_.names; }
    [[nodiscard]] int menuFormat() const;
    [[nodiscard]] bool isWineFormatVisible() const { return parameters_.withMenuFormatWine; }
    [[nodiscard]] const QStringList& wineFormats() const { return wineFormats_.names; }
    [[nodiscard]] int wineFormat() const;
    [[nodiscard]] bool isOrientationPaneVisible() const;
    [[nodiscard]] QAbstractItemModel* orientationElements() const;
    [[nodiscard]] const QStringList& blackboardTypes() const { return blackboardTypes_.names; }
    [[nodiscard]] int blackboardType() const;

signals:
    void tevoChanged();
    void logoChanged();
    void languagesChanged();
    void secondPriceChanged();
    void switchesChanged();
    void formatsChanged();
    // The draft has what the form holds.
    void committed();
    // The customer code was accepted: the preview may start.
    void previewSegueRequested();

private:
    // What a picker offers, in the order on the screen.
    struct Options {
        std::vector<Int> ids;
        QStringList names;

        [[nodiscard]] int indexOf(std::optional<Int> id) const;
        [[nodiscard]] std::optional<Int> idAt(int index) const;
    };

    template <class Record>
    static Options sortedOptions(const std::vector<Record>& records);
    [[nodiscard]] Options otherLanguages() const; // without the main one
    void fillOptions();
    void buildFieldModels();
    void applyFixedSwitches();
    void commit();
    void allTextsChanged();
    void fillFrom(const std::vector<Customer>& customers);
    void startLocation(QObject* run);
    void confirmPlace(const Placemark& place);
    void setLogo(std::string dataText);
    void tellAboutDemand();

    WizardServices services_;
    VeiledRun wait_;
    std::shared_ptr<const Catalogue> catalogue_;
    std::shared_ptr<BrochureIntermediateData> draft_;
    std::optional<BrochureType> type_;
    Brochures::Type::Parameters parameters_;
    bool isSecondPriceTypeInputAllowed_ = false;
    CustomerForm form_;
    CustomerFieldModel* contactFields_ = nullptr;
    CustomerFieldModel* placeFields_ = nullptr;
    CustomerFieldModel* onlineFields_ = nullptr;
    CustomerFieldModel* freeTextFields_ = nullptr;
    BlackboardFormatModel* orientationElements_ = nullptr;
    Options languages_;
    Options prices_;
    Options menuFormats_;
    Options wineFormats_;
    Options blackboardTypes_;
};

} // namespace kavor
