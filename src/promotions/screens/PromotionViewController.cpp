#include "promotions/screens/PromotionViewController.h"

#include "base/AppFormatter.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "documents/Customer.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "promotions/UnfinishedPromotion.h"
#include "screens/DateGrid.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr Int priceAttributeType = 3;

std::vector<AttributeValue> rowsOf(const std::vector<PromotionDraft::AttributeValue>& attributes) {
    std::vector<AttributeValue> rows;
    rows.reserve(attributes.size());
    for (const auto& each : attributes)
        rows.push_back({each.id, each.value, each.valueListId});
    return rows;
}

std::vector<PromotionDraft::AttributeValue> attributesOf(const std::vector<AttributeValue>& rows) {
    std::vector<PromotionDraft::AttributeValue> attributes;
    for (const AttributeValue& row : rows) {
        if (row.value)
            attributes.push_back({row.attributeId, *row.value, row.valueListId});
    }
    return attributes;
}

} // namespace

PromotionViewController::PromotionViewController(const PromotionServices& services,
                                                 std::shared_ptr<const Catalogue> catalogue,
                                                 const PromotionTuple& promotionSelected,
                                                 std::optional<MenuPromotionUse> use, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(std::move(catalogue))
    , promotionSelected_(promotionSelected)
    , use_(std::move(use))
    , customer_({services.network, services.alerts, services.urls, services.photos, nullptr})
    , logo_(services.photos)
    , attributeTable_(
          services.photos, [this] { return use_ ? use_->imageLogo : std::string(); }, nullptr)
    , vigencia_(DateGrid::write(services.clock.now().date()),
                fromUtf8(catalogue_->information().validations.promotionHourDayInit)) {
    openDraft();
    fillForms();
    takeOver(); // what left the catalogue is gone
    opened_ = *draft_;
    followEdits();
    connect(&services_.reachability, &Reachability::changed, this, &PromotionViewController::offlineChanged);
    if (use_)
        return;
    road_ = std::make_unique<PromotionRoad>(
        OrderRoadServices{services_.network, services_.alerts, services_.urls}, draft_, catalogue_,
        promotionSelected_);
    connect(road_.get(), &OrderRoad::documentReady, this, &PromotionViewController::showPreview);
    connect(road_.get(), &OrderRoad::orderSent, this, &PromotionViewController::sentChanged);
}

PromotionViewController::~PromotionViewController() = default;

QUrl PromotionViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/PromotionView.qml")};
}

void PromotionViewController::viewWillAppear() {
    veil_.follow();
}

// ---- The draft and the forms

void PromotionViewController::openDraft() {
    if (use_) {
        draft_ = std::make_shared<PromotionDraft>();
        draft_->promotionId = promotionSelected_.identifier;
        if (use_->request.menuPromotion)
            draft_->attributes = use_->request.menuPromotion->attributes;
        draft_->validity = use_->validity.value_or(PromotionValidity());
    } else {
        draft_ = UnfinishedPromotion::shared().open(promotionSelected_.identifier);
        recoveredMessage_ = fromUtf8(UnfinishedPromotion::shared().takeWord());
    }
    if (promotionSelected_.language) // the picture that was tapped
        draft_->languageId = promotionSelected_.language->id;
}

void PromotionViewController::fillForms() {
    customer_.show({{*CustomerForm::field("establishmentNameTextField")}, {}, {}, {}},
                   catalogue_->information().validations);
    Customer customer;
    customer.id = draft_->customerId;
    customer.name = draft_->name;
    if (!draft_->code.empty())
        customer.tevo = draft_->code;
    customer_.fill(customer);
    logo_.fill(draft_->imageLogo);
    attributeTable_.ask(promotionSelected_.identifier, askedAttributes(), types(),
                        rowsOf(draft_->attributes));
    const auto& posters = catalogue_->information().promotion;
    formatTable_.show(posters ? &*posters : nullptr, promotionSelected_, draft_->formats);
    emails_.show(draft_->emails);
    vigencia_.fill(draft_->validity);
}

void PromotionViewController::followEdits() {
    const auto follow = [this](auto* form, auto signal) {
        connect(form, signal, this, &PromotionViewController::takeOver);
    };
    // Each letter counts: the process may end at any moment.
    follow(customer_.contactFields(), &QAbstractItemModel::dataChanged);
    follow(&customer_, &PointOfSaleForm::tevoChanged);
    follow(&customer_, &PointOfSaleForm::edited);
    follow(&logo_, &LogoForm::edited);
    follow(&attributeTable_, &AttributeTableModel::edited);
    follow(&formatTable_, &PromotionFormatModel::edited);
    follow(&emails_, &EmailListModel::edited);
    follow(&vigencia_, &PromotionValidityForm::edited);
}

void PromotionViewController::takeOver() {
    PromotionDraft now = *draft_;
    Customer customer;
    customer_.apply(customer);
    now.customerId = customer.id;
    now.code = customer.tevo.value_or("");
    now.name = customer.name;
    now.imageLogo = logo_.value();
    now.attributes = attributesOf(attributeTable_.values());
    now.formats = formatTable_.switchValues();
    now.emails = emails_.texts();
    now.validity = vigencia_.value();
    if (now == *draft_)
        return;
    *draft_ = std::move(now);
    if (road_)
        road_->keep();
    emit posterChanged();
}

void PromotionViewController::chooseLanguage(int language) {
    if (language < 0 || language >= int(promotionSelected_.languajes.size()))
        return;
    draft_->languageId = promotionSelected_.languajes[std::size_t(language)].id;
    if (road_)
        road_->keep();
    emit languageChanged();
}

void PromotionViewController::editComment(const QString& text) {
    if (text == freeTextForSupport())
        return;
    draft_->comment = text.toStdString();
    if (road_)
        road_->keep();
}

// ---- The ways out

void PromotionViewController::previewAction() {
    road_->preview();
}

// The form stays as it is written after an order, which must not be made twice by a further tap.
void PromotionViewController::sendOrderAction() {
    if (!road_->isSentAsItStands())
        return road_->sendToPrint();
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("Este pedido ya se ha realizado. ¿Desea realizarlo otra vez?"),
        {no(), yes([this] { road_->sendToPrint(); })});
}

void PromotionViewController::appendByOrderAction() {
    if (isAttached_)
        return;
    const MenuPromotion made = makeMenuPromotion(*draft_, promotionSelected_, use_->request.menuPromotion);
    QStringList errors;
    for (const std::string& error : menuPromotionErrors(made, promotionSelected_.attributes))
        errors << fromUtf8(error);
    if (!errors.isEmpty())
        return services_.alerts.inform(QStringLiteral("Atención"), errors.join(QLatin1Char('\n')));
    isAttached_ = true;
    use_->attach(made, draft_->validity);
    AppSingleton::shared().appendPromotionToMenu = true;
    emit attached();
    emit closed();
}

// An order comes back as it is; what is meant for a menu would be lost.
void PromotionViewController::closeSceneAction() {
    if (!use_ || *draft_ == opened_) {
        emit closed();
        return;
    }
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Salir sin guardar los cambios de la promoción?"),
        {no(), yesDestroy([this] { emit closed(); })});
}

void PromotionViewController::showSentDocument() {
    if (isSentDocumentVisible())
        showPreview(*road_->sentOrder()->document);
}

void PromotionViewController::showPreview(const QUrl& document) {
    closePreview();
    preview_ = new WebPreviewViewController(document, QStringLiteral("Vista previa"), services_.downloader,
                                            services_.clock, this);
    connect(preview_, &WebPreviewViewController::dismissed, this, &PromotionViewController::closePreview);
    emit previewChanged();
}

void PromotionViewController::closePreview() {
    if (!preview_)
        return;
    preview_->deleteLater();
    preview_ = nullptr;
    emit previewChanged();
}

// ---- What the view shows

const AttributeTypes& PromotionViewController::types() const {
    return catalogue_->information().attributesTypes;
}

PromotionViewController::AttributeKind PromotionViewController::kindOf(const Attribute& attribute) const {
    if (!attribute.values.empty())
        return AttributeKind::choice;
    if (isLogoKind(attribute, types()))
        return AttributeKind::logo;
    return attribute.typeId == priceAttributeType ? AttributeKind::price : AttributeKind::phrase;
}

// An order has its logo apart.
std::vector<Attribute> PromotionViewController::askedAttributes() const {
    std::vector<Attribute> asked;
    for (const Attribute& attribute : promotionSelected_.attributes) {
        if (use_ || kindOf(attribute) != AttributeKind::logo)
            asked.push_back(attribute);
    }
    return asked;
}

QStringList PromotionViewController::given(AttributeKind kind) const {
    QStringList texts;
    for (const Attribute& attribute : promotionSelected_.attributes) {
        const auto value =
            std::ranges::find(draft_->attributes, attribute.id, &PromotionDraft::AttributeValue::id);
        if (kindOf(attribute) == kind && value != draft_->attributes.end())
            texts << fromUtf8(value->value);
    }
    return texts;
}

QString PromotionViewController::promotionName() const {
    return fromUtf8(promotionSelected_.promotionName);
}

QString PromotionViewController::brandName() const {
    return fromUtf8(promotionSelected_.brandName);
}

QString PromotionViewController::appendTitle() const {
    return use_ && use_->request.menuPromotion ? QStringLiteral("Guardar en la carta")
                                               : QStringLiteral("Añadir a la carta");
}

bool PromotionViewController::isImageLogoVisible() const {
    return !use_ && std::ranges::any_of(promotionSelected_.attributes, [this](const Attribute& attribute) {
        return kindOf(attribute) == AttributeKind::logo;
    });
}

bool PromotionViewController::isVigenciaVisible() const {
    return use_ || promotionSelected_.showMenuOnline;
}

QStringList PromotionViewController::languages() const {
    QStringList names;
    for (const auto& language : promotionSelected_.languajes)
        names << fromUtf8(language.name);
    return names;
}

int PromotionViewController::language() const {
    const auto& all = promotionSelected_.languajes;
    const auto found =
        std::ranges::find_if(all, [this](const auto& language) { return draft_->languageId == language.id; });
    return found == all.end() ? -1 : int(found - all.begin());
}

QString PromotionViewController::freeTextForSupport() const {
    return fromUtf8(draft_->comment);
}

QString PromotionViewController::posterImage() const {
    const int chosen = language();
    return chosen < 0 ? QString() : resourceImageUrl(promotionSelected_.languajes[std::size_t(chosen)].image);
}

QString PromotionViewController::posterPhrase() const {
    return given(AttributeKind::phrase).join(QLatin1Char('\n'));
}

QString PromotionViewController::posterPrice() const {
    QStringList prices;
    for (const QString& typed : given(AttributeKind::price)) {
        const auto price = AppFormatter::shared().parseNumber(typed.toStdString());
        prices << (price ? fromUtf8(AppFormatter::shared().currencyFormatter(*price)) : typed);
    }
    return prices.join(QLatin1Char('\n'));
}

QString PromotionViewController::posterHours() const {
    return given(AttributeKind::choice).join(QStringLiteral(" · "));
}

QString PromotionViewController::posterLogo() const {
    if (!use_)
        return isImageLogoVisible() ? logo_.imageLogo() : QString();
    const QStringList pictures = given(AttributeKind::logo);
    return pictures.isEmpty() ? QString() : dataImageUrl(pictures.first().toStdString());
}

QString PromotionViewController::posterText() const {
    QStringList texts{promotionName(), posterPhrase(), posterPrice(), posterHours()};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(". "));
}

QString PromotionViewController::sentText() const {
    const auto sent = road_ ? road_->sentOrder() : std::nullopt;
    if (!sent)
        return {};
    return sent->identifier ? QStringLiteral("Pedido %1 realizado").arg(*sent->identifier)
                            : QStringLiteral("Pedido realizado");
}

bool PromotionViewController::isSentDocumentVisible() const {
    return road_ && road_->sentOrder() && road_->sentOrder()->document;
}

bool PromotionViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
