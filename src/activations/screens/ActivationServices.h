#pragma once

#include "activations/ActivationForm.h"
#include "activations/PartyCalendarFile.h"
#include "catalogue/Catalogue.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace kavor {

class AlertPresenter;
class Clock;
class FileExport;
class PhotoPicker;
class PlainDownloader;
class Reachability;
class ScreenStack;
class ServiceOperations;
class UrlOpener;

// What the screens of activations work with. Everything outlives them.
struct ActivationServices {
    ServiceOperations& network;
    AlertPresenter& alerts;
    UrlOpener& urls;
    PhotoPicker& photos;
    Reachability& reachability;
    PlainDownloader& downloader;
    Clock& clock;
    FileExport& files;
    ScreenStack& screens;
};

// An order that is tied to one that was sent, on its way through the choice of another activation.
struct ActivationTie {
    ActivationOrder extraOrderInformation;
    std::map<Int, std::string> attributesToSend;
    bool isDateBlocked = true;
    std::vector<OrderedParty> parties; // those that were sent before
};

// How far the user has come: the brand, and what an order is tied to.
struct ActivationRoute {
    using Definition = ActivationsInformation::Definition;

    std::shared_ptr<const Catalogue> catalogue; // what the definition belongs to
    const Definition* selectedBrandActivation = nullptr;
    QPointer<QObject> board; // the screen on which the brand was chosen
    std::optional<ActivationTie> tie;
};

} // namespace kavor
