#include "Documents.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "session/AppSingleton.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>

// The operations that the wizard runs over the whole draft: their cost must follow the draft, not the
// catalogue. Arguments: brands of the draft, brands of the catalogue.
namespace kavor::bench {

namespace {

using Draft = BrochureIntermediateData;

std::shared_ptr<const Catalogue> catalogueFor(int brands) {
    static std::map<int, std::shared_ptr<const Catalogue>> made;
    auto& catalogue = made[brands];
    if (!catalogue)
        catalogue =
            std::make_shared<Catalogue>(*json::decode<ApplicationInformation>(catalogueOfBrands(brands)));
    return catalogue;
}

// A draft of a beer menu with one or two formats each of brands from all over the catalogue, two columns of
// prices.
Draft& openDraft(const benchmark::State& state) {
    const auto wanted = static_cast<std::size_t>(state.range(0));
    auto& session = AppSingleton::shared();
    session.applicationInformation = catalogueFor(static_cast<int>(state.range(1)));
    session.actualSection = SectionIdentifier::brochure(BrochureType::beer);
    const Catalogue& catalogue = session.catalogue();
    auto& draft = *Draft::replaceTemporalBrochure();
    draft.brochureTypeParameters = catalogue.brochureType(BrochureType::beer)->parameters;
    const auto& languages = catalogue.brochures().languages;
    draft.setLanguages(languages.front().id, std::nullopt);
    draft.setSecondPrice(PriceType::terrace);
    draft.selectedNumberOfBrochures = Draft::MainAndSecondary{20, 20};
    draft.customerInformation.emplace().name = "Bar La Esquina";
    // Of the kind's own family: brands of another are not carried along, and would make drafts unlike.
    const auto products = catalogue.productsOfFamily(ApplicationFather::orderBeer);
    const std::size_t stride = std::max<std::size_t>(1, products.size() / wanted);
    for (std::size_t i = 0; i < products.size() && draft.selectedBrands.size() < wanted; i += stride) {
        const Product& product = *products[i];
        for (std::size_t f = 0; product.category && f < product.productList.size() && f < 2; ++f) {
            draft.setFormatSelected(true, product.productList[f].id, product.id);
            draft.setPrice(PriceType::main, product.productList[f].id, product.id, 1000);
        }
    }
    if (draft.selectedBrands.size() != wanted) {
        std::fprintf(stderr, "bench: the catalogue is too small for the draft\n");
        std::abort();
    }
    return draft;
}

void validationErrors(benchmark::State& state) {
    const Draft& draft = openDraft(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(draft.validationErrors());
}

void makeOrder(benchmark::State& state) {
    const Draft& draft = openDraft(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(draft.makeOrder(OrderRequestType::saveCloud, false));
}

void filteredSelection(benchmark::State& state) {
    const Draft& draft = openDraft(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(draft.filteredSelection());
}

void loadOrder(benchmark::State& state) {
    const auto order = openDraft(state).makeOrder(OrderRequestType::saveCloud, false);
    for (auto _ : state)
        Draft::replaceTemporalBrochure()->loadOrder(order);
}

void sizes(benchmark::internal::Benchmark* bench) {
    for (const int draft : {10, 100, 1000})
        bench->Args({draft, 5000});
    bench->Args({100, 1250})->Args({100, 20000})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(validationErrors)->Apply(sizes);
BENCHMARK(makeOrder)->Apply(sizes);
BENCHMARK(loadOrder)->Apply(sizes);
BENCHMARK(filteredSelection)->Apply(sizes);

} // namespace

} // namespace kavor::bench

BENCHMARK_MAIN();
