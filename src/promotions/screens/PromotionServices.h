#pragma once

#include "documents/PromotionValidity.h"
#include "promotions/MenuPromotionRequest.h"

#include <functional>
#include <optional>
#include <string>

namespace kavor {

class AlertPresenter;
class Clock;
class PhotoPicker;
class PlainDownloader;
class Reachability;
class ServiceOperations;
class UrlOpener;

// What the screens of promotions work with. Everything outlives them.
struct PromotionServices {
    ServiceOperations& network;
    AlertPresenter& alerts;
    UrlOpener& urls;
    PhotoPicker& photos;
    Reachability& reachability;
    PlainDownloader& downloader;
    Clock& clock;
};

// What the screens are opened with for a menu, whose promotion is attached and not ordered.
struct MenuPromotionUse {
    MenuPromotionRequest request;
    std::optional<PromotionValidity> validity; // of the promotion to edit, where it is known
    std::string imageLogo;                     // the bar's, as picture text
    std::function<void(const MenuPromotion&, const PromotionValidity&)> attach;
};

} // namespace kavor
