#include "orders/screens/OrderMessageServices.h"

#include "session/services/AuthManager.h"

namespace kavor {

OrderMessages& ownMessages(const OrderMessageServices& services) {
    const auto stored = services.auth.readCredentials();
    services.messages.belongTo(stored ? stored->account : std::string());
    return services.messages;
}

} // namespace kavor
