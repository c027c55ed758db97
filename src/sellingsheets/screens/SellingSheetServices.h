#pragma once

namespace kavor {

class AlertPresenter;
class Clock;
class OrderDiskManager;
class PhotoPicker;
class PlainDownloader;
class Reachability;
class ServiceOperations;
class UrlOpener;

// What the screens of selling sheets work with. Everything outlives them.
struct SellingSheetServices {
    ServiceOperations& network;
    OrderDiskManager& orders;
    AlertPresenter& alerts;
    UrlOpener& urls;
    PhotoPicker& photos;
    Reachability& reachability;
    PlainDownloader& downloader;
    Clock& clock;
};

} // namespace kavor
