#pragma once

#include "activations/screens/ActivationAttributeModel.h"
#include "activations/screens/ActivationItemModel.h"
#include "activations/screens/ActivationRoad.h"
#include "activations/screens/ActivationServices.h"
#include "activations/screens/PartyCalendar.h"
#include "activations/screens/PartyHours.h"
#include "interaction/VeiledRun.h"
#include "screens/ScreenController.h"
#include "screens/VeilState.h"
#include "screens/pointofsale/PointOfSaleForm.h"

#include <QStringList>
#include <QVariantList>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace kavor {

// The form of an activation: day, hours, point of sale, place and attributes. It sends the order, and may
// then ask for a further one that is tied to it.
class ActivationsSendViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the choice of elements")
    Q_PROPERTY(QString activationName READ activationName CONSTANT)
    Q_PROPERTY(QString brandName READ brandName CONSTANT)
    Q_PROPERTY(QString image READ image CONSTANT)
    Q_PROPERTY(QString itemsText READ itemsText CONSTANT)
    Q_PROPERTY(int quota READ quota NOTIFY sentChanged)
    Q_PROPERTY(int numberMade READ numberMade NOTIFY sentChanged)
    Q_PROPERTY(QString remainingText READ remainingText NOTIFY sentChanged)
    Q_PROPERTY(kavor::PartyCalendar* calendar READ calendar CONSTANT)
    Q_PROPERTY(kavor::PartyHours* hours READ hours CONSTANT)
    Q_PROPERTY(kavor::PointOfSaleForm* customer READ customer CONSTANT)
    // That the code will not be sent; empty otherwise.
    Q_PROPERTY(QString codeNote READ codeNote NOTIFY edited)
    Q_PROPERTY(QString locationString READ locationString NOTIFY edited)
    Q_PROPERTY(QString locationDetail READ locationDetail NOTIFY edited)
    // Other addresses that were chosen before.
    Q_PROPERTY(QStringList earlierPlaces READ earlierPlaces NOTIFY edited)
    Q_PROPERTY(kavor::ActivationAttributeModel* attributes READ attributes CONSTANT)
    Q_PROPERTY(QString comment READ comment NOTIFY textsChanged)
    Q_PROPERTY(QString favoriteSteward READ favoriteSteward NOTIFY textsChanged)
    Q_PROPERTY(QString localInformation READ localInformation NOTIFY textsChanged)
    // That the order is tied to another one; empty otherwise.
    Q_PROPERTY(QString tieText READ tieText NOTIFY sentChanged)
    // Rows {icon, label, text} of what is about to be sent, while the summary is on show.
    Q_PROPERTY(bool summaryVisible READ isSummaryVisible NOTIFY summaryChanged)
    Q_PROPERTY(QVariantList summary READ summary NOTIFY summaryChanged)
    // The order was sent and can be opened.
    Q_PROPERTY(bool sent READ isSent NOTIFY sentChanged)
    // Names what the server took last; empty before.
    Q_PROPERTY(QString sentText READ sentText NOTIFY sentChanged)
    Q_PROPERTY(bool calendarFileVisible READ isCalendarFileVisible NOTIFY sentChanged)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    // The activation belongs to the route's catalogue; the elements are those that were chosen.
    ActivationsSendViewController(const ActivationServices& services, ActivationRoute route,
                                  const ActivationInformation& selectedActivation,
                                  std::vector<ActivationInformation::Item> selectedItems,
                                  QObject* parent = nullptr);
    ~ActivationsSendViewController() override;

    static QUrl view();
    void viewWillAppear() override;

    Q_INVOKABLE void locationAction();
    Q_INVOKABLE void useEarlierPlace(int place);
    Q_INVOKABLE void editComment(const QString& text);
    Q_INVOKABLE void editFavoriteSteward(const QString& text);
    Q_INVOKABLE void editLocalInformation(const QString& text);
    // Checks the form and shows the summary; opens an order that was sent.
    Q_INVOKABLE void sendAction();
    Q_INVOKABLE void confirmSend();
    Q_INVOKABLE void dismissSummary();
    Q_INVOKABLE void addToCalendar();
    Q_INVOKABLE void changeActivation();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString activationName() const;
    [[nodiscard]] QString brandName() const;
    [[nodiscard]] QString image() const;
    [[nodiscard]] QString itemsText() const;
    [[nodiscard]] int quota() const;
    [[nodiscard]] int numberMade() const;
    [[nodiscard]] QString remainingText() const;
    [[nodiscard]] PartyCalendar* calendar() { return &calendar_; }
    [[nodiscard]] PartyHours* hours() { return &hours_; }
    [[nodiscard]] PointOfSaleForm* customer() { return &customer_; }
    [[nodiscard]] QString codeNote() const;
    [[nodiscard]] QString locationString() const;
    [[nodiscard]] QString locationDetail() const;
    [[nodiscard]] QStringList earlierPlaces() const;
    [[nodiscard]] ActivationAttributeModel* attributes() { return &attributes_; }
    [[nodiscard]] QString comment() const;
    [[nodiscard]] QString favoriteSteward() const;
    [[nodiscard]] QString localInformation() const;
    [[nodiscard]] QString tieText() const;
    [[nodiscard]] bool isSummaryVisible() const { return summaryVisible_; }
    [[nodiscard]] QVariantList summary() const;
    [[nodiscard]] bool isSent() const { return road_->previsualitationURL().has_value(); }
    [[nodiscard]] QString sentText() const;
    [[nodiscard]] bool isCalendarFileVisible() const { return !parties_.empty(); }
    [[nodiscard]] bool isDateblocked() const { return calendar_.isBlocked(); } // spelt so in the model
    [[nodiscard]] const ActivationForm& form() const { return form_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;

signals:
    void edited();
    void textsChanged();
    void summaryChanged();
    void sentChanged();
    void offlineChanged();
    // Another order begins in the same form.
    void begunAnew();

private:
    void fill(const ActivationForm& form);
    void followEdits();
    void takeOver();
    void dayTapped(const QString& date);
    void hoursSelected();
    void searchPlace(const QString& direction);
    void placesFound(const SearchMapsResponse& found);
    void takePlace(const PartyPlace& place);
    void orderTaken(const ActivationRoad::Answer& answer, bool isNewOrder);
    void tellTaken(const ActivationRoad::Answer& answer, const QString& more);
    void beginTied(Int orderId);
    [[nodiscard]] QString contactSummary() const;
    [[nodiscard]] std::vector<PartyPlace> offeredPlaces() const;

    ActivationServices services_;
    ActivationRoute route_;
    const ActivationInformation& selectedActivation_;
    std::vector<ActivationInformation::Item> selectedItems_;
    ActivationForm form_;
    std::optional<ActivationForm>
        opened_; // as it came up or was sent; none of a tied one, which is begun work
    std::vector<OrderedParty> parties_;
    PartyCalendar calendar_;
    PartyHours hours_;
    PointOfSaleForm customer_;
    ActivationAttributeModel attributes_;
    std::unique_ptr<ActivationRoad> road_;
    VeiledRun search_;
    VeilState veil_;
    bool summaryVisible_ = false;
};

} // namespace kavor
