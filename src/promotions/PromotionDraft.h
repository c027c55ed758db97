#pragma once

#include "catalogue/ApplicationInformation.h"
#include "documents/MenuPromotion.h"
#include "documents/OrderRequestType.h"
#include "documents/PromotionValidity.h"
#include "documents/UnansweredSend.h"
#include "promotions/PromotionOrder.h"
#include "promotions/PromotionTuple.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kavor {

// What the form of a promotion holds. One that is ordered on its own is kept as it stands here while it is
// not sent.
struct PromotionDraft {
    using AttributeValue = MenuPromotion::PromotionAttribute;

    Int promotionId = 0;
    std::optional<Int> languageId;
    std::vector<Int> formats;               // those switched on
    std::vector<AttributeValue> attributes; // as given, in the order of the form
    std::optional<Int> customerId;          // of a point of sale that was looked up
    std::string code;
    std::string name;
    std::optional<std::string> imageLogo;
    std::vector<std::string> emails; // as typed, empty fields included
    PromotionValidity validity;
    std::string comment;
    UnansweredSends unansweredSends;

    bool operator==(const PromotionDraft&) const = default;
};

// Whether a user would miss anything of it.
bool holdsWork(const PromotionDraft& draft);

using AttributeTypes = std::vector<ApplicationInformation::AttributeType>;

// Whether an attribute asks for the bar's logo.
bool isLogoKind(const Attribute& attribute, const AttributeTypes& types);

// The order of a promotion on its own; only sendToPrint makes it final.
PromotionOrder makePromotionOrder(const PromotionDraft& draft, const PromotionTuple& promotion,
                                  const AttributeTypes& types, OrderRequestType type);

// What an order lacks, in the order of the form: code, name, formats, prices.
std::vector<std::string> promotionErrors(const PromotionOrder& order, std::span<const Attribute> attributes,
                                         bool customerCodeRequired);

// The promotion as a menu takes it: a new one without "id", an edited one with its own.
MenuPromotion makeMenuPromotion(const PromotionDraft& draft, const PromotionTuple& promotion,
                                const std::optional<MenuPromotion>& edited);
// What it lacks: a sentence for each price that is no number.
std::vector<std::string> menuPromotionErrors(const MenuPromotion& menuPromotion,
                                             std::span<const Attribute> attributes);

} // namespace kavor
