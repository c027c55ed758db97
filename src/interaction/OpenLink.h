#pragma once

class QString;

namespace kavor {

class AlertPresenter;
class UrlOpener;

// Opens an address outside the application; where that fails, an alert says so and shows the address.
void openLink(UrlOpener& urls, AlertPresenter& alerts, const QString& url);

} // namespace kavor
