#include "activations/screens/ActivationsSendViewController.h"

#include "activations/PartyDates.h"
#include "activations/screens/ActivationTexts.h"
#include "activations/screens/ActivationsSelectionViewController.h"
#include "device/Clock.h"
#include "device/FileExport.h"
#include "device/Reachability.h"
#include "documents/Customer.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "screens/ResourceImages.h"
#include "screens/ScreenStack.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavor {

namespace {

const QString warning = QStringLiteral("Atención");

LocalDateTime momentOf(const QDateTime& time) {
    const QDate day = time.date();
    const QTime hour = time.time();
    return {day.year(), day.month(), day.day(), hour.hour(), hour.minute(), hour.second()};
}

// The texts of the point of sale by the names of the kit's fields, worded as this section does.
std::vector<CustomerField> customerFields() {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 5> rows{
        std::pair{"establishmentNameTextField", "Nombre del establecimiento*"},
        std::pair{"tevoTextField", "Código cliente*"},
        std::pair{"contactNameTextField", "Nombre del contacto"}, std::pair{"contactEmailTextField", "Email"},
        std::pair{"contactTelephoneTextField", "Teléfono"}};
    std::vector<CustomerField> fields;
    for (const auto& [name, label] : rows) {
        fields.push_back(*CustomerForm::field(name));
        fields.back().label = label;
        if (name == "tevoTextField")
            fields.back().keys = CustomerFieldKeys::digits;
    }
    return fields;
}

void addRow(QVariantList& rows, const char* icon, const QString& label, const QString& text) {
    if (!text.isEmpty())
        rows << QVariantMap{{QStringLiteral("icon"), QString::fromLatin1(icon)},
                            {QStringLiteral("label"), label},
                            {QStringLiteral("text"), text}};
}

} // namespace

ActivationsSendViewController::ActivationsSendViewController(
    const ActivationServices& services, ActivationRoute route,
    const ActivationInformation& selectedActivation, std::vector<ActivationInformation::Item> selectedItems,
    QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , route_(std::move(route))
    , selectedActivation_(selectedActivation)
    , selectedItems_(std::move(selectedItems))
    , calendar_(selectedActivation)
    , customer_({services.network, services.alerts, services.urls, services.photos, nullptr})
    , road_(std::make_unique<ActivationRoad>(
          OrderRoadServices{services.network, services.alerts, services.urls}, form_, selectedActivation_,
          selectedItems_)) {
    customer_.show({customerFields(), {}, {}, {}}, route_.catalogue->information().validations);
    calendar_.setToday(services_.clock.now().date());
    if (route_.tie) {
        parties_ = route_.tie->parties;
        calendar_.setBlocked(route_.tie->isDateBlocked);
        fill(formOf(route_.tie->extraOrderInformation, route_.tie->attributesToSend));
    } else {
        fill({});
        opened_ = form_;
    }
    followEdits();
    connect(&services_.reachability, &Reachability::changed, this,
            &ActivationsSendViewController::offlineChanged);
}

ActivationsSendViewController::~ActivationsSendViewController() = default;

QUrl ActivationsSendViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/ActivationsSendView.qml")};
}

void ActivationsSendViewController::viewWillAppear() {
    veil_.follow();
    calendar_.setToday(services_.clock.now().date());
}

// ---- The form

void ActivationsSendViewController::fill(const ActivationForm& form) {
    Customer customer;
    customer.name = form.name;
    if (!form.code.empty())
        customer.tevo = form.code;
    customer.contact = form.contact;
    customer.email = form.email;
    customer.telephone = form.telephone;
    customer_.fill(customer);
    calendar_.setPartyDate(fromUtf8(form.partyDate.value_or("")));
    hours_.fill(form.hourFrom, form.hourTo);
    attributes_.ask(selectedActivation_.attributesList, form.attributesToSend);
    form_ = form;
    emit textsChanged();
    emit edited();
}

void ActivationsSendViewController::followEdits() {
    connect(customer_.contactFields(), &QAbstractItemModel::dataChanged, this,
            &ActivationsSendViewController::takeOver);
    connect(&customer_, &PointOfSaleForm::edited, this, &ActivationsSendViewController::takeOver);
    connect(&attributes_, &ActivationAttributeModel::edited, this, &ActivationsSendViewController::takeOver);
    connect(&attributes_, &ActivationAttributeModel::formatMissed, this, [this](const QString& description) {
        services_.alerts.inform(warning, QStringLiteral("El formato para este campo es ") + description);
    });
    connect(&calendar_, &PartyCalendar::tapped, this, &ActivationsSendViewController::dayTapped);
    connect(&hours_, &PartyHours::selected, this, &ActivationsSendViewController::hoursSelected);
    connect(road_.get(), &ActivationRoad::taken, this, &ActivationsSendViewController::orderTaken);
}

void ActivationsSendViewController::takeOver() {
    Customer customer;
    customer_.apply(customer);
    form_.name = customer.name;
    form_.code = customer.tevo.value_or("");
    form_.contact = customer.contact.value_or("");
    form_.email = customer.email.value_or("");
    form_.telephone = customer.telephone.value_or("");
    form_.attributesToSend = attributes_.attributesToSend();
    emit edited();
}

void ActivationsSendViewController::dayTapped(const QString& date) {
    const auto day = partyDay(date.toStdString());
    if (!day)
        return;
    const QDateTime now = services_.clock.now();
    calendar_.setToday(now.date());
    if (const auto refusal = dayRefusal(*day, momentOf(now), selectedActivation_.antelationDays))
        return services_.alerts.inform(QStringLiteral("Disponibilidad de fiesta"), fromUtf8(*refusal));
    form_.partyDate = date.toStdString();
    calendar_.setPartyDate(date);
    emit edited();
}

void ActivationsSendViewController::hoursSelected() {
    form_.hourFrom = hours_.from();
    form_.hourTo = hours_.to();
    emit edited();
    if (endsBeforeItStarts(form_.hourFrom, form_.hourTo))
        services_.alerts.inform(warning,
                                QStringLiteral("La hora de inicio ha de ser anterior a la de finalización."));
}

void ActivationsSendViewController::editComment(const QString& text) {
    form_.comment = text.toStdString();
}

void ActivationsSendViewController::editFavoriteSteward(const QString& text) {
    form_.favoriteSteward = text.toStdString();
}

void ActivationsSendViewController::editLocalInformation(const QString& text) {
    form_.localInformation = text.toStdString();
}

// ---- The place

void ActivationsSendViewController::locationAction() {
    askForText(services_.alerts, this,
               {.title = QStringLiteral("Indique la dirección completa (incluyendo número)"),
                .caption = QStringLiteral("Dirección"),
                .proposal = locationString(),
                .button = QStringLiteral("Usar")},
               [this](const QString& direction) { searchPlace(direction); });
}

void ActivationsSendViewController::searchPlace(const QString& direction) {
    if (!services_.network.isReachable())
        return informOffline(services_.alerts);
    services_.network.searchMaps(
        direction, {search_.begin("Buscando la dirección…"),
                    [this](const SearchMapsResponse& found) {
                        search_.end();
                        placesFound(found);
                    },
                    [this](const RequestFailure& failure) {
                        search_.end();
                        showRequestFailure({services_.alerts, services_.urls}, {}, failure, true,
                                           QStringLiteral("No se puede obtener una lista de ubicaciones a "
                                                          "partir de la dirección."));
                    }});
}

void ActivationsSendViewController::placesFound(const SearchMapsResponse& found) {
    AlertRequest request;
    request.title = QStringLiteral("Seleccione la opción más aproximada");
    if (found.addresses.empty())
        request.text = QStringLiteral("No se ha encontrado ninguna dirección.");
    for (const auto& address : found.addresses)
        request.choices << fromUtf8(address.fullAddress);
    request.buttons = {{QStringLiteral("Cancelar"), AlertButton::Role::Cancel}};
    services_.alerts.present(std::move(request), this,
                             [this, addresses = found.addresses](const AlertAnswer& answer) {
                                 if (answer.choice >= 0 && answer.choice < int(addresses.size()))
                                     takePlace(placeOf(addresses[std::size_t(answer.choice)]));
                             });
}

std::vector<PartyPlace> ActivationsSendViewController::offeredPlaces() const {
    std::vector<PartyPlace> places = ActivationMemory::shared().places();
    std::erase(places, form_.place);
    return places;
}

void ActivationsSendViewController::useEarlierPlace(int place) {
    const auto places = offeredPlaces();
    if (place >= 0 && place < int(places.size()))
        takePlace(places[std::size_t(place)]);
}

void ActivationsSendViewController::takePlace(const PartyPlace& place) {
    form_.place = place;
    ActivationMemory::shared().remember(place);
    emit edited();
}

// ---- The ways out

void ActivationsSendViewController::sendAction() {
    if (isSent())
        return road_->sendToPrint(); // opens it
    if (const QStringList lacks = road_->lacks(); !lacks.isEmpty())
        return services_.alerts.inform(warning, lacks.join(QLatin1Char('\n')));
    if (!services_.network.isReachable())
        return informOffline(services_.alerts);
    summaryVisible_ = true;
    emit summaryChanged();
}

void ActivationsSendViewController::dismissSummary() {
    if (std::exchange(summaryVisible_, false))
        emit summaryChanged();
}

void ActivationsSendViewController::confirmSend() {
    if (!summaryVisible_) // a second tap
        return;
    dismissSummary();
    road_->sendToPrint();
}

void ActivationsSendViewController::orderTaken(const ActivationRoad::Answer& answer, bool isNewOrder) {
    if (isNewOrder)
        parties_.push_back(
            {road_->orderToSend(), selectedActivation_.name, selectedActivation_.agencyName, answer.orderId});
    opened_ = form_; // nothing of it is lost any more
    emit sentChanged();
    if (!ActivationMemory::shared().quotas.of(selectedActivation_).hasRoom())
        return tellTaken(
            answer, QStringLiteral("\n\nYa no dispones de cupo para realizar más activaciones de este tipo"));
    if (!selectedActivation_.canBeRelatedWithAnotherActivations || !answer.orderId)
        return tellTaken(answer, {});
    ask(services_.alerts, this, QStringLiteral("Pedido realizado con éxito"),
        QStringLiteral("¿Desea asociar una activación a la activación realizada?"),
        {{QStringLiteral("No"), AlertButton::Role::Cancel, [this, answer] { tellTaken(answer, {}); }},
         yesDestroy([this, id = *answer.orderId] { beginTied(id); })});
}

void ActivationsSendViewController::tellTaken(const ActivationRoad::Answer& answer, const QString& more) {
    services_.alerts.inform({}, QStringLiteral("Pedido realizado correctamente. ") + more);
    if (answer.urlOrder)
        road_->setPrevisualitationURL(QUrl(fromUtf8(answer.urlOrder->text)));
    else
        services_.alerts.inform(
            QStringLiteral("Error"),
            QStringLiteral("No hay url para ver el pedido realizado. Contacte con soporte."));
    emit sentChanged();
}

// The same form for a further order on the same day.
void ActivationsSendViewController::beginTied(Int orderId) {
    road_->setPrevisualitationURL(std::nullopt);
    calendar_.setBlocked(true);
    opened_.reset();
    fill(formOf(tiedOrder(road_->orderToSend(), orderId), form_.attributesToSend));
    emit sentChanged();
    emit begunAnew();
}

void ActivationsSendViewController::changeActivation() {
    if (!isDateblocked() || isSent())
        return;
    ActivationRoute route = route_;
    route.tie = ActivationTie{road_->orderToSend(), form_.attributesToSend, true, parties_};
    const ActivationServices services = services_;
    if (route.board)
        services.screens.removeAbove(route.board); // this screen too
    services.screens.push({ActivationsSelectionViewController::view(),
                           new ActivationsSelectionViewController(services, std::move(route))});
}

void ActivationsSendViewController::closeSceneAction() {
    if (summaryVisible_)
        return dismissSummary();
    if (isSent() || form_ == opened_) {
        emit closed();
        return;
    }
    askToLeave(services_.alerts, this, [this] { emit closed(); });
}

void ActivationsSendViewController::addToCalendar() {
    if (parties_.empty())
        return;
    const auto id = parties_.front().orderId;
    const QString name =
        QStringLiteral("activacion%1.ics").arg(id ? QStringLiteral("-%1").arg(*id) : QString());
    const std::string file = calendarFile(parties_, momentOf(services_.clock.now()));
    const auto place = services_.files.saveAndOpen(name, QByteArray::fromStdString(file));
    if (place)
        services_.alerts.inform(QStringLiteral("Añadir al calendario"),
                                QStringLiteral("El evento se ha guardado en %1").arg(*place));
    else
        services_.alerts.inform(QStringLiteral("Error"),
                                QStringLiteral("El evento no se ha podido guardar."));
}

// ---- What the view shows

QString ActivationsSendViewController::activationName() const {
    return fromUtf8(selectedActivation_.name);
}

QString ActivationsSendViewController::brandName() const {
    return fromUtf8(route_.selectedBrandActivation->brandName);
}

QString ActivationsSendViewController::image() const {
    const QStringList all = picturesOf(selectedActivation_.imagesList);
    return all.isEmpty() ? resourceImageUrl(selectedActivation_.imageOn) : all.first();
}

QString ActivationsSendViewController::itemsText() const {
    QStringList names;
    for (const auto& item : selectedItems_)
        names << fromUtf8(item.name);
    return names.isEmpty() ? QStringLiteral("Sin elementos") : names.join(QStringLiteral(", "));
}

int ActivationsSendViewController::quota() const {
    return shownCount(ActivationMemory::shared().quotas.of(selectedActivation_).quota);
}

int ActivationsSendViewController::numberMade() const {
    return shownCount(ActivationMemory::shared().quotas.of(selectedActivation_).numberMade);
}

QString ActivationsSendViewController::remainingText() const {
    return quotaText(ActivationMemory::shared().quotas.of(selectedActivation_));
}

QString ActivationsSendViewController::codeNote() const {
    if (form_.code.empty() || road_->orderToSend().customer.cobrixCode)
        return {};
    return QStringLiteral("El código cliente solo lleva cifras: así como está no se enviará.");
}

QString ActivationsSendViewController::locationString() const {
    return fromUtf8(form_.place.fullAddress);
}

QString ActivationsSendViewController::locationDetail() const {
    QStringList parts;
    for (const auto& part : {form_.place.postalCode, form_.place.city}) {
        if (part && !part->empty())
            parts << fromUtf8(*part);
    }
    return parts.join(QLatin1Char(' '));
}

QStringList ActivationsSendViewController::earlierPlaces() const {
    QStringList texts;
    for (const PartyPlace& place : offeredPlaces())
        texts << fromUtf8(place.fullAddress);
    return texts;
}

QString ActivationsSendViewController::comment() const {
    return fromUtf8(form_.comment);
}

QString ActivationsSendViewController::favoriteSteward() const {
    return fromUtf8(form_.favoriteSteward);
}

QString ActivationsSendViewController::localInformation() const {
    return fromUtf8(form_.localInformation);
}

QString ActivationsSendViewController::tieText() const {
    return form_.otherActivationRelationIdentifier
               ? QStringLiteral("Asociada al pedido %1").arg(*form_.otherActivationRelationIdentifier)
               : QString();
}

QString ActivationsSendViewController::contactSummary() const {
    QStringList parts;
    for (const std::string* part : {&form_.contact, &form_.telephone, &form_.email}) {
        if (!part->empty())
            parts << fromUtf8(*part);
    }
    return parts.join(QStringLiteral(" · "));
}

QVariantList ActivationsSendViewController::summary() const {
    QVariantList rows;
    addRow(rows, "party", brandName(), activationName());
    addRow(rows, "calendar", QStringLiteral("Día"), calendar_.partyDateText());
    addRow(rows, "clock", QStringLiteral("Horas"),
           QStringLiteral("De %1 a %2").arg(hours_.startTimeButton(), hours_.endTimeButton()));
    addRow(rows, "store", QStringLiteral("Establecimiento"), fromUtf8(form_.name));
    addRow(rows, "user", QStringLiteral("Contacto"), contactSummary());
    addRow(rows, "location", QStringLiteral("Ubicación"), locationString());
    addRow(rows, "package", QStringLiteral("Elementos"), itemsText());
    const ActivationOrder order = road_->orderToSend();
    for (const auto& each : *order.activationInfo.attributesList) {
        const auto attribute = std::ranges::find(selectedActivation_.attributesList, each.id,
                                                 &ActivationInformation::Attribute::id);
        addRow(rows, "edit", fromUtf8(attribute->name), fromUtf8(each.value));
    }
    addRow(rows, "link", QStringLiteral("Activación asociada"), tieText());
    return rows;
}

QString ActivationsSendViewController::sentText() const {
    if (parties_.empty())
        return {};
    const auto id = parties_.back().orderId;
    return id ? QStringLiteral("Pedido %1 realizado").arg(*id) : QStringLiteral("Pedido realizado");
}

bool ActivationsSendViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
