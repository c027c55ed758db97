#pragma once

#include "orders/OrderMessages.h"

namespace kavor {

class AlertPresenter;
class AppSingleton;
class AuthManager;
class Reachability;
class ServiceOperations;
class UrlOpener;

// What the forms about a sent order work with. Everything outlives them.
struct OrderMessageServices {
    AppSingleton& session;
    ServiceOperations& network;
    AuthManager& auth;
    AlertPresenter& alerts;
    UrlOpener& urls;
    Reachability& reachability;
    OrderMessages& messages;
};

// What the user who is logged in has written about orders.
OrderMessages& ownMessages(const OrderMessageServices& services);

} // namespace kavor
