#pragma once

#include "catalogue/Enumerations.h"
#include "support/TouchDriver.h"
#include "tour/DemoServerProcess.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace kavor {

class KavorApplication;
class PrintedPdf;
struct SaveBrochuresOrder;
class WindowWatch;

// The main job on the real client, with touches and key strokes, against the demonstration server: from a
// wrong password to a printed menu, and the same once more without a network. Every step checks what the
// window shows and throws a TouchFailure when it is something else.
class Tour {
public:
    enum class Story {
        MainJob,
        EveryKind,      // orders one brochure of every kind, with all that the kind has
        Orders,         // goes through the corners of the list of orders
        Events,         // orders parties, one tied to the other, and the last of a quota
        Textile,        // orders clothing, with and without a network
        Sheets,         // makes, sends, copies and deletes selling sheets
        TextileAgain,   // a new start after that one died over a cart
        SheetsAgain,    // a new start after that one died over a sheet
        SendAndDie,     // an order is at the server, and the process dies before it hears so
        ReadOnlyOutbox, // a new start after that: the outbox may not be written
        SendAgain       // and another one: nothing stands in the way any more
    };
    struct Options {
        QString folder;        // for the pictures, the order and the PDF
        QString documents;     // of the client
        QString killAfterStep; // the process kills itself after this step; empty for none
        bool pictures = true;
        bool realWindow = false; // the window must be drawn by a thread of its own
        Story story = Story::MainJob;
    };

    explicit Tour(Options options);
    ~Tour();

    // Runs all steps; answers 0, or 1 after a step failed (told on stderr).
    int run();

    // The draft as the client would write it, for comparisons.
    [[nodiscard]] static std::string draftDocument();

private:
    struct Step {
        const char* name;
        void (Tour::*action)();
    };
    [[nodiscard]] std::vector<Step> steps() const;
    // Of the stories around a send that breaks off.
    [[nodiscard]] std::vector<Step> sendingSteps() const;

    void startServer();
    void openClient();
    void openDashboard();
    void start();
    void startAgain();
    void startWithWrongPassword();
    void logIn();
    void showDashboard();
    void openBeerMenu();
    void fillConfiguration();
    void chooseLogo();
    void chooseProducts();
    void tryIncomplete();
    void setPrices();
    void chooseQuantity();
    void chooseStyle();
    void preview();
    void print();
    void checkOrder();
    void fillMenuOffline(const QString& bar, const QString& email);
    void orderIntoOutbox();
    void orderOffline();
    void showAccount();
    void showOrdersOffline();
    void showOrders();
    void editCloudOrder();
    void copyAndDelete();
    void sendWaiting();
    void claimAndDemand();
    void showTutorials();
    void openEmptyList();
    void failFilters();
    void keepInBothPlaces();
    void deleteAndBringBack();
    void changeOffline();
    void editFromTheDevice(const QString& name);
    void tapNotification();
    void sendThree();
    void queueOne();
    void dieBeforeTheAnswer();
    void openWaiting();
    void sendOutOfReadOnly();
    void sendOnceMore();
    void orderEveryKind();
    void chooseOrderSheet();
    void hangPennants();
    void choosePennantBrand();

    void choosePartyOfBrand();
    void chooseElements();
    void tryPartyDays();
    void tryIncompleteParty();
    void fillParty();
    void sendParty();
    void tieParty();
    void changeTiedParty();
    void orderLastOfQuota();
    void openSingleParty();
    // A day of the calendar, in whichever month it is.
    void tapPartyDay(const QDate& day);
    void choosePartyHours(int from, int to);
    void leaveParty(const QString& view);

    void openTextile();
    void findCartAgain();
    void fillTextileCart();
    void previewTextile();
    void saveTextileTwice();
    void printTextileOffline();
    void printTextile();
    // The bodies of the textile orders at the server with this "save", since the tour began.
    [[nodiscard]] QJsonArray textileOrders(int save) const;
    void listSheets();
    void previewAndCopySheets();
    void writeSheet();
    void addModules();
    void previewSheet();
    void sendSheet();
    void checkSheet();
    void deleteSheets();
    void findSheetAgain();
    void showSheets(bool ofServer);
    // The sheets of the server, those of the history included.
    [[nodiscard]] QJsonArray serverSheets() const;

    void orderKind(int applicationType);
    void orderFromTheCloud(BrochureType type);
    void sendKind();
    void keepAndReopen();
    void leaveTheOrders();
    static QString cloudRow(const QJsonObject& record);
    void chooseBlackboard();
    void chooseDrinks();
    static void checkDrinks(const QJsonObject& order);
    void fillAttributes(const QString& phrase);
    void attachPromotion();
    void openMargins();
    void askPrices();
    void changePromotions();
    void orderPromotion();
    void fillPromotion();
    void checkPromotion();
    void visitExtras();
    [[nodiscard]] QJsonObject orderOfKind() const;
    void checkKind();
    void checkPdf(const PrintedPdf& pdf, const SaveBrochuresOrder& order) const;
    // Whether the kind in work has a step.
    [[nodiscard]] bool hasStep(int menuEntry) const;
    void chooseFirst(const QString& picker, int option = 0);
    void selectBrands(ApplicationFather family, std::size_t number, std::size_t step);
    void openSection(int applicationType);
    void openStep(int menuEntry);
    // The row of a draft of this name in the list of orders, or a part of it.
    [[nodiscard]] static QString savedRow(const QString& folder, const QString& name,
                                          const QString& part = {});
    // The numbers of the orders that the server took to print since the tour began.
    [[nodiscard]] QJsonArray printedOrders() const;
    // Waits for an alert and answers it with one of its buttons.
    void dismissAlert(const QString& title, const QString& part, int button = 0);
    // A picture at each of the three sizes, numbered.
    void shot(const QString& name);
    void remember();
    void checkWindow() const;

    Options options_;
    std::unique_ptr<DemoServerProcess> server_;
    std::unique_ptr<KavorApplication> application_;
    std::unique_ptr<WindowWatch> watch_;
    std::unique_ptr<TouchDriver> touch_;
    std::vector<std::string> documents_; // the draft after each action
    QStringList wanted_;                 // the pictures to take; empty for all
    int shots_ = 0;
};

} // namespace kavor
