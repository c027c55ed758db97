#pragma once

#include "activations/ActivationForm.h"
#include "activations/ActivationOrder.h"
#include "documents/UnansweredSend.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace kavor {

// How many activations of a kind the user may hold, and how many there are.
struct ActivationQuota {
    Int quota = 0;
    Int numberMade = 0;

    [[nodiscard]] bool hasRoom() const { return numberMade < quota; }
    // How many may still be made, never below 0.
    [[nodiscard]] Int remaining() const { return hasRoom() ? quota - numberMade : 0; }
    bool operator==(const ActivationQuota&) const = default;
};

// What the server has said of quotas since the user logged in; before that the catalogue's numbers hold.
class ActivationQuotas {
public:
    [[nodiscard]] ActivationQuota of(const ActivationInformation& activation) const;
    // Of an id that stands twice the first counts.
    void take(const ActivationsUserQuota& answer);
    // An order was taken: what the answer does not say goes up by itself, unless the order was counted
    // before.
    void count(const ActivationInformation& activation, const SaveBrochuresOrderActivationResponse& answer,
               bool isNewOrder);

private:
    std::map<Int, ActivationQuota> numbers_;
};

// What the section remembers while one account is logged in; nothing of it is written. Main thread only.
class ActivationMemory {
public:
    // That of the account that is logged in; of another account nothing is left.
    static ActivationMemory& shared();

    ActivationQuotas quotas;
    UnansweredSends unansweredSends; // orders that nobody answered
    std::set<std::string> counted;   // the content of those that were taken and may be sent again
    // A place that was chosen stands first, and once.
    void remember(const PartyPlace& place);
    [[nodiscard]] const std::vector<PartyPlace>& places() const { return places_; }

private:
    std::string account_;
    std::vector<PartyPlace> places_;
};

} // namespace kavor
