#pragma once

#include "screens/ScreenController.h"
#include "screens/ScreenStack.h"
#include "screens/VeilState.h"
#include "screens/WebPreviewViewController.h"
#include "screens/pointofsale/LogoForm.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "sellingsheets/StyleSingleton.h"
#include "sellingsheets/screens/SellingSheetRoad.h"
#include "sellingsheets/screens/SellingSheetServices.h"
#include "sellingsheets/screens/SheetPage.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <optional>

namespace kavor {

// The data of the sheet in work, StyleSingleton's: all that is no module. Each change is written into it at
// once and kept safe.
class DataViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the list")
    Q_PROPERTY(QString sheetNameTextField READ sheetNameTextField NOTIFY changed)
    Q_PROPERTY(QString titleTextField READ titleTextField NOTIFY changed)
    Q_PROPERTY(QString subtitleTextField READ subtitleTextField NOTIFY changed)
    Q_PROPERTY(QString freeTextField READ freeTextField NOTIFY changed)
    Q_PROPERTY(QString emailTextField1 READ emailTextField1 NOTIFY changed)
    Q_PROPERTY(QString emailTextField2 READ emailTextField2 NOTIFY changed)
    Q_PROPERTY(QString emailTextField3 READ emailTextField3 NOTIFY changed)
    // "12 de 50 caracteres", and whether that is too many; the fields do not stop.
    Q_PROPERTY(QString titleCount READ titleCount NOTIFY changed)
    Q_PROPERTY(bool titleTooLong READ isTitleTooLong NOTIFY changed)
    Q_PROPERTY(QString subtitleCount READ subtitleCount NOTIFY changed)
    Q_PROPERTY(bool subtitleTooLong READ isSubtitleTooLong NOTIFY changed)
    // Here the field stops.
    Q_PROPERTY(int freeTextLength READ freeTextLength CONSTANT)
    Q_PROPERTY(bool logotypeSwitch READ logotypeSwitch NOTIFY changed)
    Q_PROPERTY(bool taxesIncludedWarningSwitch READ taxesIncludedWarningSwitch NOTIFY changed)
    Q_PROPERTY(bool modulePerPage READ modulePerPage NOTIFY changed)
    // What the date buttons read, "dd/MM/yyyy" or "Elegir fecha", and the same for a calendar, "dd-MM-yy".
    Q_PROPERTY(QString startingDate READ startingDate NOTIFY changed)
    Q_PROPERTY(QString endingDate READ endingDate NOTIFY changed)
    Q_PROPERTY(QString startingDay READ startingDay NOTIFY changed)
    Q_PROPERTY(QString endingDay READ endingDay NOTIFY changed)
    Q_PROPERTY(QString datesError READ datesError NOTIFY changed)
    Q_PROPERTY(QString today READ today CONSTANT)
    Q_PROPERTY(kavor::LogoForm* logo READ logo CONSTANT)
    // Each {source, text}; the one chosen, -1 for one that left the catalogue, which the hint says.
    Q_PROPERTY(QVariantList styles READ styles CONSTANT)
    Q_PROPERTY(int style READ style NOTIFY changed)
    Q_PROPERTY(QString styleHint READ styleHint NOTIFY changed)
    // Addresses of earlier sheets that no field holds.
    Q_PROPERTY(QStringList rememberedEmails READ rememberedEmails NOTIFY changed)
    // "3 módulos", "Sin módulos".
    Q_PROPERTY(QString modulesText READ modulesText NOTIFY changed)
    Q_PROPERTY(kavor::SheetPage* page READ page CONSTANT)
    // That unfinished work came back; empty otherwise.
    Q_PROPERTY(QString recoveredMessage READ recoveredMessage CONSTANT)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    Q_PROPERTY(kavor::WebPreviewViewController* preview READ preview NOTIFY previewChanged)

public:
    enum Field { SheetName, Title, Subtitle, FreeText, Email1, Email2, Email3 };
    Q_ENUM(Field)
    enum Switch { Logotype, TaxesIncluded, ModulePerPage };
    Q_ENUM(Switch)
    // Of editingDateIdentifier.
    enum DateButton { Starting = 1, Ending = 2 };
    Q_ENUM(DateButton)

    DataViewController(const SellingSheetServices& services, std::shared_ptr<const Catalogue> catalogue,
                       QObject* parent = nullptr);
    ~DataViewController() override;

    static QUrl view();
    void viewWillAppear() override;

    Q_INVOKABLE void edit(kavor::DataViewController::Field field, const QString& text);
    Q_INVOKABLE void toggle(kavor::DataViewController::Switch which, bool on);
    // A day "dd-MM-yy" from the calendar; empty takes the date away.
    Q_INVOKABLE void chooseDate(kavor::DataViewController::DateButton editingDateIdentifier,
                                const QString& day);
    Q_INVOKABLE void chooseStyle(int index);
    // Puts a remembered address into the first empty field.
    Q_INVOKABLE void takeEmail(const QString& address);
    Q_INVOKABLE void modulesAction();
    Q_INVOKABLE void previewAction();
    Q_INVOKABLE void saveAction();
    Q_INVOKABLE void sendAction();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString sheetNameTextField() const;
    [[nodiscard]] QString titleTextField() const;
    [[nodiscard]] QString subtitleTextField() const;
    [[nodiscard]] QString freeTextField() const;
    [[nodiscard]] QString emailTextField1() const;
    [[nodiscard]] QString emailTextField2() const;
    [[nodiscard]] QString emailTextField3() const;
    [[nodiscard]] QString titleCount() const;
    [[nodiscard]] bool isTitleTooLong() const;
    [[nodiscard]] QString subtitleCount() const;
    [[nodiscard]] bool isSubtitleTooLong() const;
    [[nodiscard]] int freeTextLength() const;
    [[nodiscard]] bool logotypeSwitch() const { return order_.isNRVLogoIncluded; }
    [[nodiscard]] bool taxesIncludedWarningSwitch() const { return order_.areTaxesIncluded; }
    [[nodiscard]] bool modulePerPage() const { return order_.showOneModulePerPage; }
    [[nodiscard]] QString startingDate() const;
    [[nodiscard]] QString endingDate() const;
    [[nodiscard]] QString startingDay() const;
    [[nodiscard]] QString endingDay() const;
    [[nodiscard]] QString datesError() const;
    [[nodiscard]] QString today() const;
    [[nodiscard]] LogoForm* logo() { return &logo_; }
    [[nodiscard]] QVariantList styles() const;
    [[nodiscard]] int style() const;
    [[nodiscard]] QString styleHint() const;
    [[nodiscard]] QStringList rememberedEmails() const;
    [[nodiscard]] QString modulesText() const;
    [[nodiscard]] SheetPage* page() { return &page_; }
    [[nodiscard]] QString recoveredMessage() const { return recoveredMessage_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] WebPreviewViewController* preview() const { return preview_; }

signals:
    void changed();
    void offlineChanged();
    void previewChanged();
    // The form has closed, and the draft that it stored is to be sent.
    void sendRequested(const kavor::SellingSheetOrder& order, const std::string& filename);
    void screenRequested(const kavor::Screen& screen);

private:
    [[nodiscard]] const SellingSheet& sheets() const;
    void take(SellingSheetOrder order);
    [[nodiscard]] QStringList missing() const;
    // Stores the sheet as a draft unless its file holds it already; tells why it could not be.
    bool store();
    [[nodiscard]] bool isStored() const;
    void leave();
    void showPreview(const QUrl& document);
    void closePreview();

    SellingSheetServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    SellingSheetOrder order_;  // as StyleSingleton has it
    SellingSheetOrder opened_; // as it came up, or as it was stored last
    QString recoveredMessage_;
    std::vector<SellingSheet::Style> styles_;
    QStringList remembered_;
    LogoForm logo_;
    SheetPage page_;
    VeilState veil_;
    SellingSheetRoad road_;
    WebPreviewViewController* preview_ = nullptr;
    QPointer<QObject> modules_; // the list of modules that is open
    bool isLeft_ = false;
};

} // namespace kavor
