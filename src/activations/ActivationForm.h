#pragma once

#include "activations/ActivationOrder.h"
#include "catalogue/ActivationsInformation.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

// Where the party is, as an order names it.
struct PartyPlace {
    std::string fullAddress;
    std::optional<std::string> postalCode;
    std::optional<std::string> city;

    bool operator==(const PartyPlace&) const = default;
};

// The place of an address that was found; without both postal code and city it has neither.
PartyPlace placeOf(const SearchMapsResponse::Address& address);

// What the form of an activation holds, texts as typed. It lives as long as its screen.
struct ActivationForm {
    std::string name;
    std::string code;
    std::string contact;
    std::string email;
    std::string telephone;
    PartyPlace place;
    std::optional<std::string> partyDate; // "dd-MM-yyyy"
    std::optional<std::string> hourFrom;  // "HH:mm"
    std::optional<std::string> hourTo;
    std::string comment;
    std::string favoriteSteward;
    std::string localInformation;
    std::map<Int, std::string> attributesToSend; // by the attribute's number
    std::optional<Int> otherActivationRelationIdentifier;

    bool operator==(const ActivationForm&) const = default;
};

// What an hour reads in an order while none is chosen.
inline constexpr const char* noHour = "-";

// The elements that are chosen, in the order of the catalogue; one that is required always is. Entries
// missing in the selection are not chosen.
std::vector<ActivationInformation::Item> chosenItems(const ActivationInformation& activation,
                                                     const std::vector<bool>& selectedItems);

// The order as the form stands, complete or not. Empty texts, a code that is no integer and values of
// attributes that the activation does not ask for are left out.
ActivationOrder makeActivationOrder(const ActivationForm& form, const ActivationInformation& activation,
                                    const std::vector<ActivationInformation::Item>& items);

// What an order lacks to be sent, in the order of the check.
std::vector<std::string> activationErrors(const ActivationOrder& order,
                                          const std::vector<ActivationInformation::Attribute>& attributes);

// An order that is tied to the sent one: the same point of sale, place, date and attributes; without hours
// and texts.
ActivationOrder tiedOrder(ActivationOrder sent, Int orderId);
// The form as an order fills it.
ActivationForm formOf(const ActivationOrder& order, const std::map<Int, std::string>& attributesToSend);

// The value of an attribute as it is stored after typing: a price has a point.
std::string storedValue(const ActivationInformation::Attribute& attribute, std::string typed);
// Whether a stored value misses the attribute's regular expression (ICU's, looked for anywhere). An empty
// value never does, nor does any under an expression that cannot be judged, which is logged.
bool missesFormat(const ActivationInformation::Attribute& attribute, const std::string& value);

} // namespace kavor
