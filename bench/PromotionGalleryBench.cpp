#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "promotions/screens/PromotionStyleSelectorViewController.h"
#include "resources/PlainDownloader.h"
#include "session/AppSingleton.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"

#include <QGuiApplication>
#include <QIdentityProxyModel>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

// The gallery with 5,000 promotions in three languages: how long it takes to open, and the longest that a
// change of its filters takes, as the rows of its view follow it.
namespace kavor::bench {

namespace {

constexpr Int promotions = 5000;
constexpr Int brands = 200;
constexpr Int classifications = 12;

ApplicationInformation catalogueOfPromotions() {
    ApplicationInformation information;
    for (Int id = 1; id <= brands; ++id) {
        Product& brand = information.products.emplace_back();
        brand.id = id;
        brand.name = "Marca " + std::to_string(id);
    }
    Posters& posters = information.promotion.emplace();
    for (Int id = 1; id <= classifications; ++id)
        posters.classifications.push_back({id, classifications - id, "Clase " + std::to_string(id)});
    for (Int id = 1; id <= promotions; ++id) {
        Posters::Promotion& promotion = posters.promotions.emplace_back();
        promotion.id = id;
        promotion.position = id * 7919 % promotions;
        promotion.brandId = id * 31 % (brands + 5) + 1; // some have left the catalogue
        promotion.classificationIdentifier = id % 13;   // some have none that is known
        promotion.title = "Promoción " + std::to_string(id);
        for (Int language = 1; language <= 3; ++language)
            promotion.languages.push_back(
                {language, "Idioma", language == 2, {"h", Url{"http://server.example/p"}, 3}});
    }
    return information;
}

double milliseconds(const std::function<void()>& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace

} // namespace kavor::bench

int main(int argc, char** argv) {
    using namespace kavor;
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    AppSingleton::shared().applicationInformation =
        std::make_shared<const Catalogue>(bench::catalogueOfPromotions());
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakePhotoPicker photos;
    FakeReachability reachability;
    PlainDownloader downloader;
    SystemClock clock;
    using Gallery = PromotionStyleSelectorViewController;
    std::vector<double> opening;
    std::vector<double> worst;
    for (int round = 0; round < rounds; ++round) {
        std::unique_ptr<Gallery> gallery;
        opening.push_back(bench::milliseconds([&] {
            gallery = std::make_unique<Gallery>(
                PromotionServices{network, alerts, urls, photos, reachability, downloader, clock});
        }));
        QIdentityProxyModel follower; // as views do, somebody follows the rows
        follower.setSourceModel(gallery->visiblePromotions());
        worst.push_back(0);
        for (int step = 0; step < 120; ++step) {
            const double took = bench::milliseconds([&] {
                if (step % 10 == 9)
                    gallery->removeFilters();
                else if (step % 2 == 0)
                    gallery->carouselCurrentItemIndexDidChange(Gallery::Carousel::Classifications, step % 13);
                else
                    gallery->carouselCurrentItemIndexDidChange(Gallery::Carousel::Brands, step % 7);
            });
            worst.back() = std::max(worst.back(), took);
        }
        gallery->removeFilters();
        if (gallery->visiblePromotions()->count() != 3 * bench::promotions)
            return 1;
    }
    std::ranges::sort(opening);
    std::ranges::sort(worst);
    std::printf("{\"opening_ms\": %.2f, \"filter_ms\": %.2f}\n", opening[opening.size() / 2],
                worst[worst.size() / 2]);
    return 0;
}
