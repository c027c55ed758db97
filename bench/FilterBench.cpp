#include "Documents.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/products/PriorityBrandSelectorView.h"
#include "session/AppSingleton.h"

#include <QIdentityProxyModel>

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>

// The search field over 5,000 brands of one family, letter by letter, through the filter bar into the list.
namespace kavor::bench {

namespace {

class Bar : public PriorityFilterDelegate {
public:
    Bar() {
        auto information = *json::decode<ApplicationInformation>(catalogueOfBrands(5000));
        for (auto& product : information.products)
            product.applicationFather = ApplicationFather::orderBeer;
        auto& session = AppSingleton::shared();
        session.applicationInformation = std::make_shared<const Catalogue>(std::move(information));
        session.actualSection = SectionIdentifier::brochure(BrochureType::beer);
        brands.setDraft(BrochureIntermediateData::replaceTemporalBrochure());
        brands.setBrands(session.applicationInformation, ApplicationFather::orderBeer);
        // As views do, somebody follows the rows.
        follower.setSourceModel(&brands);
        filter = std::make_unique<PriorityBrandSelectorView>(session.catalogue().brochures().brandProperties,
                                                             ApplicationFather::orderBeer, *this, nullptr);
    }
    void brandFilterDidChange() override { brands.setFilter(filter->brandFilter()); }

    BrandListModel brands;
    QIdentityProxyModel follower;
    std::unique_ptr<PriorityBrandSelectorView> filter;
};

void keystroke(benchmark::State& state) {
    Bar bar;
    // Typed, deleted, typed: from the common to the rare and back.
    const QString words[] = {QStringLiteral("a"),     QStringLiteral("ar"),
                             QStringLiteral("art"),   QStringLiteral("ar"),
                             QStringLiteral("a"),     QString(),
                             QStringLiteral("o"),     QStringLiteral("Ó"),
                             QStringLiteral("zzz"),   QString(),
                             QStringLiteral("negra"), QString()};
    double worst = 0;
    std::size_t at = 0;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        bar.filter->setSearchBrandTextField(words[at]);
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
        worst = std::max(worst, took.count());
        state.SetIterationTime(took.count() / 1000);
        at = (at + 1) % std::size(words);
    }
    state.counters["worst_ms"] = worst;
    state.counters["brands"] = bar.brands.count();
}

BENCHMARK(keystroke)->UseManualTime()->Iterations(1200)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace kavor::bench

BENCHMARK_MAIN();
