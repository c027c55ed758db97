#include "tour/Tour.h"

#include "base/AppFormatter.h"
#include "base/BackgroundFileWriter.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "orders/OrderDiskManager.h"
#include "session/AppSingleton.h"
#include "shell/screens/PhotoLibraryViewController.h"
#include "shell/screens/RootController.h"
#include "support/WindowWatch.h"
#include "tour/PrintedPdf.h"
#include "tour/TourSupport.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <signal.h>
#include <unistd.h>

#include <cstdio>

namespace kavor {

namespace {

constexpr int beerMenu = 1; // its ApplicationType
const QSize tablet(1024, 768);
const QSize otherSizes[] = {QSize(768, 1024), QSize(390, 844)};

// Places in the wizard's menu.
constexpr int productsEntry = 2;
constexpr int pricesEntry = 3;
constexpr int digitalStyleEntry = 4;
constexpr int styleEntry = 5;
constexpr int sendEntry = 8;

// A logo as a bar has it: an emblem with the first letter of its name.
QImage barLogo() {
    QImage logo(320, 320, QImage::Format_RGB32);
    logo.fill(QColor(0xfa, 0xf6, 0xee));
    QPainter painter(&logo);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0x12, 0x3f, 0x31));
    painter.setPen(QPen(QColor(0xe0, 0xa1, 0x26), 14));
    painter.drawEllipse(logo.rect().adjusted(16, 16, -16, -16));
    QFont font(QStringLiteral("Roboto"));
    font.setPixelSize(170);
    font.setWeight(QFont::Bold);
    painter.setFont(font);
    painter.setPen(QColor(0xfa, 0xf6, 0xee));
    painter.drawText(logo.rect(), Qt::AlignCenter, QStringLiteral("H"));
    return logo;
}

const BrochureIntermediateData& draft() {
    return *BrochureIntermediateData::temporalBrochure();
}

} // namespace

Tour::Tour(Options options)
    : options_(std::move(options)) {}

Tour::~Tour() = default;

std::string Tour::draftDocument() {
    return json::encodePretty(draft().makeOrder(OrderRequestType::saveCloud, false)).value_or("");
}

std::vector<Tour::Step> Tour::steps() const {
    const std::vector<Step> everyKind = {{"inicio", &Tour::start},
                                         {"clave", &Tour::startWithWrongPassword},
                                         {"entrada", &Tour::logIn},
                                         {"panel", &Tour::showDashboard},
                                         {"cartas", &Tour::orderEveryKind}};
    const std::vector<Step> orders = {
        {"inicio", &Tour::start},          {"clave", &Tour::startWithWrongPassword},
        {"entrada", &Tour::logIn},         {"panel", &Tour::showDashboard},
        {"vacia", &Tour::openEmptyList},   {"filtros", &Tour::failFilters},
        {"nube", &Tour::editCloudOrder},   {"sitios", &Tour::keepInBothPlaces},
        {"version", &Tour::changeOffline}, {"borrar", &Tour::deleteAndBringBack},
        {"tres", &Tour::sendThree},        {"aviso", &Tour::tapNotification}};
    const std::vector<Step> events = {{"inicio", &Tour::start},
                                      {"clave", &Tour::startWithWrongPassword},
                                      {"entrada", &Tour::logIn},
                                      {"panel", &Tour::showDashboard},
                                      {"fiesta", &Tour::choosePartyOfBrand},
                                      {"elementos", &Tour::chooseElements},
                                      {"dias", &Tour::tryPartyDays},
                                      {"incompleto", &Tour::tryIncompleteParty},
                                      {"formulario", &Tour::fillParty},
                                      {"pedido", &Tour::sendParty},
                                      {"asociada", &Tour::tieParty},
                                      {"otra", &Tour::changeTiedParty},
                                      {"ultima", &Tour::orderLastOfQuota},
                                      {"sola", &Tour::openSingleParty}};
    const std::vector<Step> sheets = {
        {"inicio", &Tour::start},        {"clave", &Tour::startWithWrongPassword},
        {"entrada", &Tour::logIn},       {"panel", &Tour::showDashboard},
        {"hojas", &Tour::listSheets},    {"copia", &Tour::previewAndCopySheets},
        {"datos", &Tour::writeSheet},    {"modulos", &Tour::addModules},
        {"previa", &Tour::previewSheet}, {"envio", &Tour::sendSheet},
        {"borrar", &Tour::deleteSheets}};
    const std::vector<Step> mainJob = {{"inicio", &Tour::start},
                                       {"clave", &Tour::startWithWrongPassword},
                                       {"entrada", &Tour::logIn},
                                       {"panel", &Tour::showDashboard},
                                       {"carta", &Tour::openBeerMenu},
                                       {"configuracion", &Tour::fillConfiguration},
                                       {"productos", &Tour::chooseProducts},
                                       {"incompleto", &Tour::tryIncomplete},
                                       {"precios", &Tour::setPrices},
                                       {"margen", &Tour::openMargins},
                                       {"orientaprecios", &Tour::askPrices},
                                       {"estilo", &Tour::chooseStyle},
                                       {"comandero", &Tour::chooseOrderSheet},
                                       {"promociones", &Tour::changePromotions},
                                       {"banderines", &Tour::hangPennants},
                                       {"previa", &Tour::preview},
                                       {"impresion", &Tour::print},
                                       {"pedido", &Tour::checkOrder},
                                       {"sin-red", &Tour::orderOffline},
                                       {"pedidos-sin-red", &Tour::showOrdersOffline},
                                       {"pedidos", &Tour::showOrders},
                                       {"nube", &Tour::editCloudOrder},
                                       {"copia", &Tour::copyAndDelete},
                                       {"enviar", &Tour::sendWaiting},
                                       {"reclamar", &Tour::claimAndDemand},
                                       {"cuenta", &Tour::showAccount},
                                       {"tutoriales", &Tour::showTutorials},
                                       {"carteleria", &Tour::orderPromotion}};
    const std::vector<Step> textile = {{"inicio", &Tour::start},
                                       {"clave", &Tour::startWithWrongPassword},
                                       {"entrada", &Tour::logIn},
                                       {"panel", &Tour::showDashboard},
                                       {"textil", &Tour::openTextile},
                                       {"carrito", &Tour::fillTextileCart},
                                       {"previa", &Tour::previewTextile},
                                       {"guardar", &Tour::saveTextileTwice},
                                       {"sin-red", &Tour::printTextileOffline},
                                       {"impresion", &Tour::printTextile}};
    switch (options_.story) {
    case Story::Textile:
        return textile;
    case Story::MainJob:
        return mainJob;
    case Story::EveryKind:
        return everyKind;
    case Story::Orders:
        return orders;
    case Story::Events:
        return events;
    case Story::Sheets:
        return sheets;
    case Story::TextileAgain:
        return {{"panel", &Tour::openDashboard}, {"carrito", &Tour::findCartAgain}};
    case Story::SheetsAgain:
        return {{"panel", &Tour::openDashboard}, {"hoja", &Tour::findSheetAgain}};
    default:
        return sendingSteps();
    }
}

int Tour::run() {
    for (const Step& step : steps()) {
        try {
            (this->*step.action)();
            remember();
            checkWindow();
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "tour: step \"%s\" failed: %s\n", step.name, failure.what());
            if (application_ && application_->window() != nullptr)
                application_->window()->grabWindow().save(options_.folder + QStringLiteral("/fallo.png"));
            return 1;
        }
        std::printf("%s: bien\n", step.name);
        std::fflush(stdout);
        if (options_.killAfterStep == QLatin1String(step.name)) {
            // However slow the disk: what the screens have asked to be kept is the draft as it is now.
            BackgroundFileWriter::shared().flush();
            if (!documents_.empty())
                writeFile(options_.folder + QStringLiteral("/expected.json"),
                          QByteArray::fromStdString(documents_.back()));
            server_.reset(); // gone for sure before another start; the client hears nothing of it
            ::kill(::getpid(), SIGKILL);
        }
    }
    return 0;
}

void Tour::checkWindow() const {
    must(!options_.realWindow || watch_->hasThreadOfItsOwn(),
         QStringLiteral("a thread of its own draws the window"));
    must(watch_->fontChanges() == 0, QStringLiteral("the font database stays as it is"));
}

// Keeps the document of the draft whenever it changed.
void Tour::remember() {
    if (!AppSingleton::shared().brochureType())
        return;
    std::string document = draftDocument();
    if (documents_.empty() || documents_.back() != document)
        documents_.push_back(std::move(document));
}

void Tour::shot(const QString& name) {
    remember();
    if (!options_.pictures || (!wanted_.isEmpty() && !wanted_.contains(name)))
        return;
    const QString number = QStringLiteral("%1").arg(++shots_, 2, 10, QLatin1Char('0'));
    const QString base = options_.folder + QLatin1Char('/') + number + QLatin1Char('-') + name;
    touch_->shot(base + QStringLiteral(".png"));
    for (const QSize& size : otherSizes) {
        application_->window()->resize(size);
        touch_->shot(base + QStringLiteral("-%1x%2.png").arg(size.width()).arg(size.height()));
    }
    application_->window()->resize(tablet);
    touch_->settle();
}

void Tour::dismissAlert(const QString& title, const QString& part, int button) {
    touch_->waitUntil(QStringLiteral("alert \"%1\" with \"%2\"").arg(title, part), [&] {
        const AlertPresenter& alerts = application_->alerts();
        return alerts.isVisible() && alerts.title() == title && alerts.text().contains(part);
    });
    touch_->tap(QStringLiteral("alertButton%1").arg(button));
}

void Tour::openStep(int menuEntry) {
    touch_->tap(QStringLiteral("menuEntry%1").arg(menuEntry));
}

void Tour::openSection(int applicationType) {
    touch_->tap(QStringLiteral("welcomeButton%1").arg(applicationType));
}

// A start over the same folders finds the same server at the same address.
void Tour::startServer() {
    const QString folder = options_.documents + QStringLiteral("-server");
    QDir().mkpath(folder);
    QFile port(folder + QStringLiteral("/port"));
    QStringList arguments;
    if (port.open(QIODevice::ReadOnly))
        arguments = {QStringLiteral("--port"), QString::fromUtf8(port.readAll())};
    server_ = std::make_unique<DemoServerProcess>(folder, arguments);
    port.close();
    writeFile(port.fileName(), QByteArray::number(QUrl(server_->url()).port()));
}

void Tour::start() {
    openClient();
    touch_->await(QStringLiteral("emailTextField"));
    shot(QStringLiteral("inicio"));
}

void Tour::openClient() {
    QDir().mkpath(options_.folder);
    startServer();

    KavorOptions client;
    client.configuration = server_->configurationFile().toStdString();
    client.documents = options_.documents.toStdString();
    client.caches = (options_.documents + QStringLiteral("-caches")).toStdString();
    client.size = tablet;
    auto configuration = KavorApplication::loadConfiguration(client);
    must(configuration.has_value(), QString::fromStdString(configuration ? "" : configuration.error()));
    application_ = std::make_unique<KavorApplication>(client, std::move(*configuration));
    must(application_->start(), QStringLiteral("the window opens"));
    watch_ = std::make_unique<WindowWatch>(*application_->window());
    touch_ = std::make_unique<TouchDriver>(*application_->window());
    must(QTest::qWaitForWindowExposed(application_->window()), QStringLiteral("the window shows"));
}

void Tour::startWithWrongPassword() {
    touch_->type(QStringLiteral("emailTextField"), server_->account());
    touch_->type(QStringLiteral("passwordTextField"), QStringLiteral("no-es-esta"));
    touch_->tap(QStringLiteral("loginButton"));
    touch_->waitUntil(QStringLiteral("the alert of a wrong password"),
                      [&] { return application_->alerts().isVisible(); });
    must(application_->alerts().title() == QStringLiteral("Incidencia"), application_->alerts().title());
    shot(QStringLiteral("clave-erronea"));
    touch_->tap(QStringLiteral("alertButton0"));
}

void Tour::logIn() {
    touch_->type(QStringLiteral("passwordTextField"), server_->password());
    touch_->tap(QStringLiteral("rememberPasswordSwitch"));
    touch_->tap(QStringLiteral("loginButton"));
    touch_->waitUntil(QStringLiteral("the dashboard"),
                      [&] { return application_->root().welcome() != nullptr; });
    // The pictures come fast: the window is taken at the moment when a good part of them is there.
    const WelcomeViewController* welcome = application_->root().welcome();
    bool underWay = false;
    const auto watching =
        QObject::connect(welcome, &WelcomeViewController::progressChanged, application_->window(), [&] {
            underWay =
                underWay || (welcome->progressMessage().startsWith(QStringLiteral("Actualizando imágenes")) &&
                             welcome->progress() > 0.7);
        });
    touch_->waitUntil(QStringLiteral("the progress of the pictures"), [&] { return underWay; });
    QObject::disconnect(watching);
    if (options_.pictures) {
        const QString name =
            options_.folder + QStringLiteral("/%1-catalogo-llega.png").arg(++shots_, 2, 10, QLatin1Char('0'));
        must(application_->window()->grabWindow().save(name), QStringLiteral("write ") + name);
    }
    touch_->awaitGone(QStringLiteral("progressVeilView"));
}

void Tour::showDashboard() {
    touch_->await(QStringLiteral("notificationsFrameView"));
    shot(QStringLiteral("avisos"));
    touch_->tap(QStringLiteral("dismissNotificationsButton"));
    touch_->awaitGone(QStringLiteral("notificationsFrameView"));
    must(touch_->allTexts().contains(QStringLiteral("Catálogo actualizado")),
         QStringLiteral("the age of the catalogue"));
    shot(QStringLiteral("panel"));
}

void Tour::openBeerMenu() {
    openSection(beerMenu);
    touch_->await(QStringLiteral("tevoTextField"));
}

void Tour::fillConfiguration() {
    touch_->type(QStringLiteral("tevoTextField"), QStringLiteral("B0007"));
    touch_->tap(QStringLiteral("searchTEVOCode"));
    touch_->waitUntil(QStringLiteral("the bar of the code"), [] {
        return draft().customerInformation && !draft().customerInformation->name.empty();
    });
    chooseFirst(QStringLiteral("firstLanguagePicker"));
    touch_->waitUntil(QStringLiteral("a language in the draft"),
                      [] { return draft().currentLanguages().has_value(); });
    shot(QStringLiteral("configuracion"));
    remember();
    chooseLogo();
}

// The bar's logo, from a folder of the device in which there is nothing else.
void Tour::chooseLogo() {
    const QString folder = options_.documents + QStringLiteral("-fotos");
    QDir().mkpath(folder);
    must(barLogo().save(folder + QStringLiteral("/logotipo.png")), QStringLiteral("write the logo"));
    const auto former = draft().customerInformation->imageLogo;
    touch_->tap(QStringLiteral("searchLogoInGallery"));
    touch_->await(QStringLiteral("photoGrid"));
    const auto settled = [&] {
        touch_->waitUntil(QStringLiteral("the settled library"),
                          [&] { return application_->photos().isSettled(); });
    };
    settled();
    application_->photos().open(QUrl::fromLocalFile(folder));
    settled();
    touch_->tap(QStringLiteral("photoEntry0"));
    touch_->awaitGone(QStringLiteral("photoLibrary"));
    touch_->waitUntil(QStringLiteral("the logo in the draft"),
                      [&] { return draft().customerInformation->imageLogo != former; });
}

void Tour::chooseProducts() {
    openStep(productsEntry);
    selectBrands(ApplicationFather::orderBeer, 4, 3);
    shot(QStringLiteral("productos"));
}

// Finds brands by typing their names and takes the first format of each.
void Tour::selectBrands(ApplicationFather family, std::size_t number, std::size_t step) {
    const std::shared_ptr<const Catalogue> catalogue = AppSingleton::shared().applicationInformation;
    const auto products = catalogue->productsOfFamily(family);
    for (std::size_t i = 0; i < number; ++i) {
        const Product& brand = *products[i * step];
        touch_->type(QStringLiteral("searchBrandTextField"), QString::fromStdString(brand.name));
        touch_->tap(QStringLiteral("brandFormat%1_%2").arg(brand.id).arg(brand.productList.front().id));
        touch_->waitUntil(QString::fromStdString(brand.name) + QStringLiteral(" selected"),
                          [&] { return draft().selectedBrands.contains(brand.id); });
        remember();
    }
    touch_->type(QStringLiteral("searchBrandTextField"), QString());
}

void Tour::chooseFirst(const QString& picker, int option) {
    touch_->tap(picker);
    touch_->tap(picker + QStringLiteral("Option%1").arg(option));
}

void Tour::tryIncomplete() {
    openStep(sendEntry);
    touch_->tap(QStringLiteral("makeOrderButton"));
    touch_->waitUntil(QStringLiteral("the messages of an incomplete order"),
                      [&] { return application_->alerts().title() == QStringLiteral("Pedido incompleto"); });
    must(application_->alerts().text().contains(QStringLiteral("No hay ningún estilo seleccionado.")),
         application_->alerts().text());
    shot(QStringLiteral("incompleto"));
    touch_->tap(QStringLiteral("alertButton0"));
}

void Tour::setPrices() {
    openStep(pricesEntry);
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("Recuerda que has de marcar"));
    const auto rows = draft().selectedProducts();
    const int columns = draft().currentSecondPrice() ? 2 : 1;
    // The comma and the point of the keypad are both decimal signs.
    const std::pair<QString, double> prices[] = {{QStringLiteral("2,75"), 2.75},
                                                 {QStringLiteral("3.20"), 3.2}};
    for (int row = 0; row < 2; ++row) {
        const Int brand = rows[static_cast<std::size_t>(row)]->id;
        const Int format = draft().selectedBrands.at(brand).front();
        touch_->type(QStringLiteral("retailPrimaryPriceTextField%1").arg(100 + row * columns),
                     prices[row].first);
        touch_->key(Qt::Key_Tab);
        touch_->waitUntil(QStringLiteral("the price ") + prices[row].first, [&] {
            return draft().priceOf(PriceType::main, format, brand) == prices[row].second;
        });
        remember();
    }
    touch_->tap(QStringLiteral("newProductButton1"));
    shot(QStringLiteral("precios"));
}

// As many copies as the kind asks for at least, from a picker or typed.
void Tour::chooseQuantity() {
    const auto& parameters = *draft().brochureTypeParameters;
    if (!parameters.checkUnitsNumber)
        return;
    if (!parameters.rangeOrderQuantity.empty()) {
        chooseFirst(QStringLiteral("selectorQuantity1Picker"));
    } else {
        touch_->type(
            QStringLiteral("numberBrochuresTextField"),
            QString::number(std::min(parameters.maximumOrderQuantity, parameters.minimumOrderQuantity + 15)));
        touch_->key(Qt::Key_Tab);
    }
    touch_->waitUntil(QStringLiteral("the number of copies"), [&] {
        return draft().selectedNumberOfBrochures &&
               draft().selectedNumberOfBrochures->main >= parameters.minimumOrderQuantity;
    });
}

void Tour::chooseStyle() {
    openStep(styleEntry);
    touch_->tap(QStringLiteral("styleStripThumbnail1"));
    touch_->waitUntil(QStringLiteral("a paper style"), [] { return draft().currentStyle() != nullptr; });
    touch_->settle();
    if (!draft().currentStyle()->logotypeIdentifiers.empty()) {
        const QString pickers[] = {QStringLiteral("firstBrandPicker"), QStringLiteral("secondBrandPicker"),
                                   QStringLiteral("thirdBrandPicker")};
        for (int i = 0; i < 3; ++i)
            chooseFirst(pickers[i], i);
    }
    chooseQuantity();
    if (!touch_->isShown(QStringLiteral("offlineChip")))
        shot(QStringLiteral("estilo"));
    if (!touch_->isShown(QStringLiteral("menuEntry%1").arg(digitalStyleEntry)))
        return;
    openStep(digitalStyleEntry);
    touch_->tap(QStringLiteral("styleStripThumbnail0"));
    touch_->waitUntil(QStringLiteral("a digital style"),
                      [] { return draft().currentStyleDigital() != nullptr; });
    if (!touch_->isShown(QStringLiteral("offlineChip")))
        shot(QStringLiteral("estilo-online"));
}

void Tour::preview() {
    openStep(sendEntry);
    shot(QStringLiteral("enviar"));
    touch_->tap(QStringLiteral("previewAction"));
    touch_->await(QStringLiteral("webPreview"));
    touch_->waitUntil(QStringLiteral("the pages of the document"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("1 / 4")); });
    shot(QStringLiteral("vista-previa"));
    touch_->tap(QStringLiteral("dismissPreview"));
    touch_->awaitGone(QStringLiteral("webPreview"));
}

void Tour::print() {
    touch_->tap(QStringLiteral("makeOrderButton"));
    touch_->waitUntil(QStringLiteral("the word of success"),
                      [&] { return application_->alerts().title() == QStringLiteral("Éxito"); });
    shot(QStringLiteral("pedido-realizado"));
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->waitUntil(QStringLiteral("the button that shows the order"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("Ver pedido")); });
}

// The body that the server got is the draft, and its PDF says the same.
void Tour::checkOrder() {
    const QJsonArray orders = QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders"))).array();
    must(orders.size() == 1, QStringLiteral("one order at the server, not %1").arg(orders.size()));
    const QJsonObject order = orders.first().toObject();
    const QByteArray body = QJsonDocument(order[QStringLiteral("body")].toObject()).toJson();
    writeFile(options_.folder + QStringLiteral("/pedido.json"), body);
    const auto received = json::decode<SaveBrochuresOrder>(body.toStdString());
    must(received.has_value(), QString::fromStdString(received ? "" : received.error().text()));
    must(*received == draft().makeOrder(OrderRequestType::sendToPrint, true),
         QStringLiteral("the order equals the draft"));

    const QByteArray pdf = server_->get(order[QStringLiteral("url_pdf")].toString());
    writeFile(options_.folder + QStringLiteral("/carta.pdf"), pdf);
    const PrintedPdf document(pdf);
    checkPdf(document, *received);
    const Catalogue& catalogue = AppSingleton::shared().catalogue();
    for (const auto& brand : received->menu.beerBrands) {
        for (const auto& beer : brand.beers) {
            document.mustSay(catalogue.format(*brand.brand, *beer.id)->icon);
            for (const auto& price : beer.prices)
                document.mustSay(AppFormatter::shared().currencyFormatter(price.price));
        }
    }
}

// A menu from its beginning, without a network, ready to be ordered.
void Tour::fillMenuOffline(const QString& bar, const QString& email) {
    application_->setOffline(true);
    touch_->tap(QStringLiteral("menuEntry0"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("¿Desea borrar todos los datos"), 1);
    touch_->await(QStringLiteral("offlineChip"));
    for (const auto& [field, text] : {std::pair("establishmentNameTextField", bar),
                                      std::pair("contactNameTextField", QStringLiteral("Nuria Peña")),
                                      std::pair("contactEmailTextField", email),
                                      std::pair("contactTelephoneTextField", QStringLiteral("600111222"))})
        touch_->type(QLatin1String(field), text);
    chooseFirst(QStringLiteral("firstLanguagePicker"));
    openStep(productsEntry);
    selectBrands(ApplicationFather::orderBeer, 4, 3);
    openStep(pricesEntry);
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("Recuerda que has de marcar"));
    chooseStyle();
}

// Orders the menu and is told that it waits; the word stays.
void Tour::orderIntoOutbox() {
    openStep(sendEntry);
    touch_->tap(QStringLiteral("makeOrderButton"));
    touch_->waitUntil(QStringLiteral("the word that the order waits"), [&] {
        return application_->alerts().title() == QStringLiteral("Sin conexión a internet.") &&
               application_->alerts().text().contains(QStringLiteral("\"Sin enviar"));
    });
}

// The same without a network: the order waits in the outbox.
void Tour::orderOffline() {
    fillMenuOffline(QStringLiteral("Bar La Cantera Nueva"), QStringLiteral("nuria@cantera.example"));
    orderIntoOutbox();
    shot(QStringLiteral("sin-conexion"));
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->waitUntil(QStringLiteral("the number of unsent orders"),
                      [&] { return touch_->isShown(QStringLiteral("unsentOrders")); });
    shot(QStringLiteral("panel-sin-conexion"));
    const OrderDiskManager orders(AppSingleton::shared().documentsFolder(),
                                  OrderDiskManager::Opening::AsItStands);
    const auto waiting =
        orders.retrieve<SaveBrochuresOrder>("Sin enviar.zvo", OrderDiskManager::DirectoryName::outbox);
    must(waiting && waiting->menu.customer.name == "Bar La Cantera Nueva",
         QStringLiteral("the order in the outbox"));
    must(QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders"))).array().size() == 1,
         QStringLiteral("nothing reached the server"));
}

void Tour::showAccount() {
    touch_->tap(QStringLiteral("profileButton"));
    touch_->await(QStringLiteral("profileName"));
    must(touch_->allTexts().contains(QStringLiteral("Lucía Ferrandel")), touch_->allTexts());
    shot(QStringLiteral("perfil"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->tap(QStringLiteral("suggestionsButton"));
    touch_->tap(QStringLiteral("sendSuggestion"));
    must(touch_->allTexts().contains(QStringLiteral("Elige una categoría.")), touch_->allTexts());
    chooseFirst(QStringLiteral("suggestionCategory"));
    touch_->type(QStringLiteral("suggestionBody"), QStringLiteral("Un papel que aguante la lluvia."));
    shot(QStringLiteral("buzon"));
    touch_->tap(QStringLiteral("sendSuggestion"));
    dismissAlert(QStringLiteral("Buzón"), QStringLiteral("Gracias"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
}

} // namespace kavor
