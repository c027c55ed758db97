#include "activations/ActivationMemory.h"

#include "session/AppSingleton.h"

#include <algorithm>
#include <limits>

namespace kavor {

ActivationQuota ActivationQuotas::of(const ActivationInformation& activation) const {
    const auto known = numbers_.find(activation.id);
    return known == numbers_.end() ? ActivationQuota{activation.quota, activation.numberMade} : known->second;
}

void ActivationQuotas::take(const ActivationsUserQuota& answer) {
    std::map<Int, ActivationQuota> said;
    for (const auto& entry : answer.activationList)
        said.try_emplace(entry.id, ActivationQuota{entry.quota, entry.numberMade});
    for (const auto& [id, quota] : said)
        numbers_[id] = quota;
}

void ActivationQuotas::count(const ActivationInformation& activation,
                             const SaveBrochuresOrderActivationResponse& answer, bool isNewOrder) {
    ActivationQuota now = of(activation);
    now.quota = answer.quota.value_or(now.quota);
    if (answer.numberMade)
        now.numberMade = *answer.numberMade;
    else if (isNewOrder && now.numberMade < std::numeric_limits<Int>::max())
        ++now.numberMade;
    numbers_[activation.id] = now;
}

ActivationMemory& ActivationMemory::shared() {
    static ActivationMemory instance;
    const auto& session = AppSingleton::shared();
    const std::string account = session.userEmail.value_or(session.storedAccount.value_or(""));
    if (instance.account_ != account) {
        instance = ActivationMemory();
        instance.account_ = account;
    }
    return instance;
}

void ActivationMemory::remember(const PartyPlace& place) {
    constexpr std::size_t most = 5;
    std::erase(places_, place);
    places_.insert(places_.begin(), place);
    if (places_.size() > most)
        places_.resize(most);
}

} // namespace kavor
