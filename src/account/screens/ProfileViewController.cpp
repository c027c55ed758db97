#include "account/screens/ProfileViewController.h"

#include "account/Budget.h"
#include "device/Reachability.h"
#include "interaction/OpenLink.h"
#include "interaction/QtText.h"
#include "network/ServiceOperations.h"
#include "network/ShowRequestFailure.h"

#include <QUrl>
#include <QVariantMap>

namespace kavor {

namespace {

using User = UserProfile::User;

struct Detail {
    const char* label;
    const char* icon;
    std::optional<std::string> User::*text;
};

constexpr Detail shownDetails[] = {{"Perfil", "user", &User::profile},
                                   {"Tipo", "tag", &User::type},
                                   {"Delegación", "store", &User::delegation},
                                   {"Zona", "location", &User::zone},
                                   {"Correo", "mail", &User::email},
                                   {"Teléfono", "phone", &User::phoneNumber},
                                   {"Dirección", "store", &User::firstDirection},
                                   {"Dirección (continuación)", "store", &User::secondDirection},
                                   {"Código postal", "location", &User::postalCode},
                                   {"Municipio", "location", &User::municipality},
                                   {"Provincia", "location", &User::province}};

QVariantMap budget(const QString& title, const std::string& initial, const std::string& available,
                   const std::string& orders) {
    return {{QStringLiteral("title"), title},
            {QStringLiteral("available"), fromUtf8(available)},
            {QStringLiteral("initial"), fromUtf8(initial)},
            {QStringLiteral("orders"), fromUtf8(orders)},
            {QStringLiteral("share"), shareLeft(initial, available).value_or(-1)}};
}

} // namespace

ProfileViewController::ProfileViewController(const AccountServices& services, QObject* parent)
    : ScreenController(parent)
    , services_(services) {
    connect(&services_.reachability, &Reachability::changed, this, [this] {
        emit offlineChanged();
        if (!user_ && !isLoading() && !isOffline())
            load();
    });
}

ProfileViewController::~ProfileViewController() = default;

void ProfileViewController::viewWillAppear() {
    load();
}

void ProfileViewController::load() {
    if (isLoading())
        return;
    problem_.clear();
    if (isOffline()) {
        problem_ = QStringLiteral("No hay conexión a internet.");
        emit changed();
        return;
    }
    services_.network.profileInformation({run_.begin(),
                                          [this](const UserProfile& profile) {
                                              run_.end();
                                              user_ = profile.user;
                                              emit changed();
                                          },
                                          [this](const RequestFailure& failure) { failed(failure); }});
    emit changed();
}

void ProfileViewController::failed(const RequestFailure& failure) {
    run_.end();
    if (failure.error.updateNeeded)
        showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, {});
    problem_ = failure.messages && !failure.messages->isEmpty() ? failure.messages->first()
                                                                : failure.error.localizedDescription;
    emit changed();
}

void ProfileViewController::editAction() {
    if (isEditable())
        openLink(services_.urls, services_.alerts, fromUtf8(*user_->editUrl));
}

bool ProfileViewController::isEditable() const {
    if (!user_ || !user_->editUrl)
        return false;
    const QString scheme = QUrl(fromUtf8(*user_->editUrl), QUrl::StrictMode).scheme();
    return scheme == QLatin1String("https") || scheme == QLatin1String("http");
}

bool ProfileViewController::isOffline() const {
    return !services_.network.isReachable();
}

QString ProfileViewController::name() const {
    return user_ ? fromUtf8(user_->name.value_or("")) : QString();
}

QVariantList ProfileViewController::details() const {
    QVariantList rows;
    for (const Detail& detail : shownDetails) {
        const auto* text = user_ && user_.value().*detail.text ? &*(user_.value().*detail.text) : nullptr;
        if (text && !text->empty())
            rows.append(QVariantMap{{QStringLiteral("label"), QString::fromUtf8(detail.label)},
                                    {QStringLiteral("text"), fromUtf8(*text)},
                                    {QStringLiteral("icon"), QString::fromLatin1(detail.icon)}});
    }
    return rows;
}

QVariantList ProfileViewController::budgets() const {
    if (!user_)
        return {};
    return {budget(QStringLiteral("Cartas"), user_->brochuresInitialBudget, user_->brochuresAvailableBudget,
                   user_->brochureOrdersDone),
            budget(QStringLiteral("Textil"), user_->textileInitialBudget, user_->textileAvailableBudget,
                   user_->textileOrdersDone)};
}

} // namespace kavor
