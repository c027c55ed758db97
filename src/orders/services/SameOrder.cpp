#include "orders/services/SameOrder.h"

namespace kavor {

bool isThatOrder(const SaveBrochuresOrder& sent, BrochureType kind, const Customer& bar) {
    const Customer& sentBar = sent.menu.customer;
    const std::string sentCode = sentBar.tevo.value_or("");
    const std::string code = bar.tevo.value_or("");
    const bool isThatBar = sentCode.empty() || code.empty() ? sentBar.name.empty() || sentBar.name == bar.name
                                                            : sentCode == code;
    return sent.menu.orderType == kind && isThatBar;
}

bool isThatOrder(const SaveBrochuresOrder& sent, const SaveBrochuresOrder& other) {
    return isThatOrder(sent, other.menu.orderType, other.menu.customer);
}

} // namespace kavor
