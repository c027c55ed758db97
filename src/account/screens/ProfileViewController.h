#pragma once

#include "account/UserProfile.h"
#include "account/screens/AccountServices.h"
#include "interaction/PendingRun.h"
#include "screens/ScreenController.h"

#include <QString>
#include <QVariantList>

#include <optional>

namespace kavor {

struct RequestFailure;

// Who the server says that the user is, and what is left of the budgets.
class ProfileViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
    // Why there is nothing to see; empty while loading and when there is.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    // Entries {label, text, icon}; what the server leaves out has none.
    Q_PROPERTY(QVariantList details READ details NOTIFY changed)
    // Entries {title, available, initial, orders, share}; share is below 0 when it cannot be told.
    Q_PROPERTY(QVariantList budgets READ budgets NOTIFY changed)
    Q_PROPERTY(bool editable READ isEditable NOTIFY changed)

public:
    explicit ProfileViewController(const AccountServices& services, QObject* parent = nullptr);
    ~ProfileViewController() override;

    void viewWillAppear() override;

    Q_INVOKABLE void load();
    // Opens the server's page for the user's data in the browser.
    Q_INVOKABLE void editAction();
    Q_INVOKABLE void closeSceneAction() { emit closed(); }

    [[nodiscard]] bool isLoading() const { return run_.isUnderWay(); }
    [[nodiscard]] QString problem() const { return problem_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] QVariantList details() const;
    [[nodiscard]] QVariantList budgets() const;
    [[nodiscard]] bool isEditable() const;

signals:
    void changed();
    void offlineChanged();

private:
    void failed(const RequestFailure& failure);

    AccountServices services_;
    PendingRun run_;
    std::optional<UserProfile::User> user_;
    QString problem_;
};

} // namespace kavor
