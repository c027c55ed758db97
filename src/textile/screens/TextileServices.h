#pragma once

namespace kavor {

class AlertPresenter;
class Clock;
class FontRegistry;
class FontUpdater;
class OrderDiskManager;
class PhotoPicker;
class PlainDownloader;
class Reachability;
class ReverseLocationManager;
class ServiceOperations;
class UrlOpener;

// What the screens of clothing work with. Everything outlives them.
struct TextileServices {
    ServiceOperations& network;
    OrderDiskManager& orders;
    AlertPresenter& alerts;
    UrlOpener& urls;
    Clock& clock;
    PlainDownloader& downloader;
    PhotoPicker& photos;
    Reachability& reachability;
    FontRegistry& fonts;
    FontUpdater& fontUpdater;
    ReverseLocationManager* location = nullptr; // none on a device without location
};

} // namespace kavor
