#pragma once

#include "orders/OrderList.h"

#include <functional>

namespace kavor {

class AlertPresenter;
class AppSingleton;
class BackgroundOrderSync;
class Clock;
class OrderActions;
class OrderDiskManager;
class Reachability;
class ServiceOperations;
class UrlOpener;

// What the list of orders works with. Everything outlives it.
struct OrderListServices {
    AppSingleton& session;
    ServiceOperations& network;
    OrderDiskManager& orders;
    OrderActions& actions;
    BackgroundOrderSync& sync;
    AlertPresenter& alerts;
    UrlOpener& urls;
    Clock& clock;
    Reachability& reachability;
};

// The ways from the list to further screens.
struct OrderListWays {
    std::function<void()> wizard; // with the shared draft, as it stands
    std::function<void(const OrderList::Order&)> claim;
    std::function<void(const OrderList::Order&)> qrDemand;
    std::function<void()> textile = {}; // as the wizard, for clothing
};

} // namespace kavor
