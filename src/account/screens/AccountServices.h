#pragma once

#include "account/SuggestionDraft.h"

namespace kavor {

class AlertPresenter;
class AppSingleton;
class AuthManager;
class FilmPlayer;
class Reachability;
class ServiceOperations;
class UrlOpener;

// What the screens about the user's account work with. Everything outlives them.
struct AccountServices {
    AppSingleton& session;
    ServiceOperations& network;
    AuthManager& auth;
    AlertPresenter& alerts;
    UrlOpener& urls;
    Reachability& reachability;
    SuggestionDraft& suggestion;
    FilmPlayer& films;
};

} // namespace kavor
