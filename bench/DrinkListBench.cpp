#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "brochures/wizard/drinks/BrochureDrinkListViewController.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "resources/PlainDownloader.h"
#include "session/AppSingleton.h"
#include "session/services/SessionStore.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QIdentityProxyModel>

#include <algorithm>
#include <cstdio>
#include <functional>

// The step of the other drinks with many of them, all in the menu too: how long an action holds the window's
// thread at most.
namespace kavor::bench {

namespace {

constexpr int drinks = 1000;

class NoSync : public OrderSync {
public:
    void startOrderSync() override {}
};

// Ten categories: the first has half of the drinks, each in one or two formats.
std::shared_ptr<const Catalogue> catalogueOfDrinks() {
    ApplicationInformation information;
    information.validations.productFormatNumber = 3;
    auto& brochures = information.brochures.emplace();
    auto& type = brochures.types.emplace_back();
    type.id = BrochureType::beverage;
    type.parameters = Brochures::Type::Parameters();
    brochures.prices = {{PriceType::main, "Barra"}, {PriceType::terrace, "Terraza"}};
    for (int category = 0; category < 10; ++category)
        brochures.drinks.push_back({category + 1, "Categoría " + std::to_string(category), category, {}, {}});
    for (int i = 0; i < drinks; ++i) {
        auto& products = brochures.drinks[std::size_t(i % 2 == 0 ? 0 : i % 10)].products;
        const std::string name = (i % 3 == 0 ? "Limón y menta " : "Zumo de piña ") + std::to_string(i);
        products.push_back({i + 1, name, i, 2.5, 3.0, "De la casa", "Vaso"});
        if (i % 4 == 0)
            products.push_back({i + 1, name, i, 7.5, 8.0, "De la casa", "Jarra"});
    }
    return std::make_shared<const Catalogue>(std::move(information));
}

void selectAll(BrochureIntermediateData& draft, const Catalogue& catalogue) {
    for (const auto& category : catalogue.brochures().drinks) {
        for (const auto& product : category.products)
            draft.setBeverageSelected(true, {.identifier = product.id, .formatName = product.formatName},
                                      category.id);
    }
}

double milliseconds(const std::function<void()>& action) {
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

} // namespace kavor::bench

// drink_list_bench ROUNDS: the longest of each kind of action in each round, medians of the rounds, as one
// object of JSON.
int main(int argc, char* argv[]) {
    using namespace kavor;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    const TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    session.setFolders(folder.path(), folder.path() / "caches");
    session.loginResult = LoginResult{};
    session.applicationInformation = bench::catalogueOfDrinks();
    session.actualSection = SectionIdentifier::brochure(BrochureType::beverage);
    SessionStore sessions(session);
    OrderDiskManager orders(folder.path());
    FakeServices network;
    bench::NoSync sync;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    SystemClock clock;
    PlainDownloader downloader;
    FakePhotoPicker photos;
    FakeReachability reachability;
    const WizardServices services{network, orders, sessions,   sync,   alerts,
                                  urls,    clock,  downloader, photos, reachability};
    std::vector<double> opening;
    std::vector<double> filtering;
    std::vector<double> editing;
    std::vector<double> reopened;
    for (int round = 0; round < rounds; ++round) {
        auto& draft = *BrochureIntermediateData::replaceTemporalBrochure();
        draft.setSecondPrice(PriceType::terrace);
        bench::selectAll(draft, session.catalogue());
        BrochureDrinkListViewController step(services, nullptr);
        opening.push_back(bench::milliseconds([&] {
            step.viewDidLoad();
            step.viewWillAppear();
            step.chooseCategory(0);
        }));
        // As views do, somebody follows the rows.
        QIdentityProxyModel list;
        QIdentityProxyModel table;
        list.setSourceModel(step.productsDataSource());
        table.setSourceModel(step.selectedProductsTable());
        double worst = 0;
        for (const char* word : {"l", "li", "lim", "limón y", "li", "", "ñ", "99", "zzz", ""})
            worst = std::max(worst, bench::milliseconds([&] {
                                 step.productsDataSource()->setFilterText(QString::fromUtf8(word));
                             }));
        filtering.push_back(worst);
        worst = 0;
        for (int row = 1; row < 40; ++row)
            worst = std::max(worst, bench::milliseconds([&] {
                                 step.selectedDrinks()->productModifyPriceDelegateMethod(
                                     row, false, QString::number(row + round + 3));
                             }));
        editing.push_back(worst);
        // In a draft that comes back every price is the user's own.
        const auto order = draft.makeOrder(OrderRequestType::saveCloud, false);
        BrochureIntermediateData::replaceTemporalBrochure()->loadOrder(order);
        BrochureDrinkListViewController again(services, nullptr);
        again.viewDidLoad();
        reopened.push_back(bench::milliseconds([&] { again.viewWillAppear(); }));
        reopened.back() = std::max(reopened.back(), bench::milliseconds([&] {
                                       again.selectedDrinks()->productModifyPriceDelegateMethod(
                                           1, false, QStringLiteral("9,5"));
                                   }));
        if (table.rowCount() < bench::drinks || list.rowCount() < bench::drinks / 2)
            return 1;
    }
    TemporalBrochure::shared().flush();
    const auto median = [](std::vector<double>& all) {
        std::ranges::sort(all);
        return all[all.size() / 2];
    };
    std::printf(
        "{\"opening_ms\": %.2f, \"filtering_ms\": %.2f, \"editing_ms\": %.2f, \"reopened_ms\": %.2f}\n",
        median(opening), median(filtering), median(editing), median(reopened));
    return 0;
}
