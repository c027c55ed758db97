#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kavor {

// What a process-local notification carries.
using NotificationInfo =
    std::map<std::string,
             std::variant<bool, std::int64_t, std::string, std::pair<std::int64_t, std::int64_t>>>;

// The names that tie screens together.
namespace notification {
inline constexpr std::string_view urlSchemeOpened = "URLSchemeOpened";
inline constexpr std::string_view needToUpdateResources = "NeedToUpdateResources";
inline constexpr std::string_view updatingResourcesDidEnd = "UpdatingResourcesDidEnd";
inline constexpr std::string_view uploadOrder = "UploadOrder";
inline constexpr std::string_view uploadingOrderChangedProgress = "UploadingOrderChangedProgress";
inline constexpr std::string_view visibilityVeilView = "VisibilityVeilView";
inline constexpr std::string_view showPreferredBrandsBanner = "ShowPreferredBrandsBanner";
inline constexpr std::string_view preferredBrandsBannerClosed = "PreferredBrandsBannerClosed";
inline constexpr std::string_view reloadOrders = "ReloadOrders";
} // namespace notification

// Process-local notifications by name. Main thread only: whoever posts from elsewhere moves there first.
// Observers run in the order in which they subscribed; one that subscribes during a post waits for the next.
class NotificationCenter {
public:
    using Observer = std::function<void(const NotificationInfo&)>;

    // Keeps an observer; destroying it ends the observation.
    class Subscription {
    public:
        Subscription() = default;
        Subscription(Subscription&&) noexcept = default;
        Subscription& operator=(Subscription&&) noexcept = default;
        Subscription(const Subscription&) = delete;
        Subscription& operator=(const Subscription&) = delete;
        ~Subscription() = default;

    private:
        friend class NotificationCenter;
        explicit Subscription(std::shared_ptr<Observer> observer)
            : observer_(std::move(observer)) {}
        std::shared_ptr<Observer> observer_;
    };

    static NotificationCenter& shared();

    [[nodiscard]] Subscription observe(std::string_view name, Observer observer);
    void post(std::string_view name, const NotificationInfo& info = {});

private:
    std::map<std::string, std::vector<std::weak_ptr<Observer>>, std::less<>> observers_;
};

} // namespace kavor
