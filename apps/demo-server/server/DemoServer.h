#pragma once

#include "Options.h"
#include "catalogue/Catalogue.h"
#include "drawing/Studio.h"
#include "server/Accounts.h"
#include "server/Answer.h"
#include "server/Database.h"
#include "server/FaultSwitches.h"
#include "server/OrderCheck.h"
#include "server/Orders.h"
#include "server/RequestLog.h"

#include <functional>
#include <memory>
#include <mutex>
#include <regex>
#include <string>

namespace httplib {
class Server;
}

namespace kavor::demo {

/// The programme's server on the loopback. Needs a QGuiApplication for its pictures and PDFs.
class DemoServer {
public:
    /// Binds the port and makes the catalogue. Throws std::runtime_error when port or data folder cannot be
    /// used.
    explicit DemoServer(const Options& options);
    ~DemoServer();

    int port() const { return port_; }
    const std::string& baseUrl() const { return baseUrl_; }

    /// Serves until stop() is called from another thread.
    void listen();
    void stop();

    /// The property list with which clients find this server.
    std::string configuration() const;

private:
    struct Call {
        const httplib::Request& request;
        Account account; ///< of the bearer token; empty where none is asked for

        std::string parameter(const char* name) const;
        /// A parameter as a number, none when it is missing or no number.
        std::optional<std::int64_t> number(const char* name) const;
        /// A part of the path.
        std::string part(size_t index) const;
        /// The body as JSON; discarded (is_discarded) when it is none.
        Json json() const;
    };
    using Handler = std::function<Answer(const Call&)>;
    /// Who may call, and whether an answer is kept for requests that are sent again under the same key.
    enum class Access { open, bearer, bearerWrite };

    /// Serves requests that have a method with a body but neither a body nor its length.
    bool servedWithoutBody(const httplib::Request& request, httplib::Response& response) const;
    /// A request that the library itself refuses as too long gets a message; answers whether it was one.
    static bool explainRefusal(httplib::Response& response);
    void route(const std::string& method, const std::string& pattern, Access access, Handler handler);
    Answer answerFor(const httplib::Request& request, Access access, const Handler& handler);
    Answer guarded(const httplib::Request& request, Access access, const Handler& handler);
    Answer onlyOnce(const Call& call, const Handler& handler);
    std::optional<Answer> outdated(const httplib::Request& request) const;
    Answer withFault(const FaultSwitch& fault, const std::function<Answer()>& real) const;

    static Answer refusal(const Faults& faults, int status = 422);
    std::string previewUrl(const std::string& kind, const Json& body);

    // Session, catalogue and look-ups.
    void addSessionRoutes();
    Answer login(const Call& call);
    Answer customers(const Call& call);
    Answer prices(const Call& call);

    // The profile, its form in the browser, and the suggestion mailbox.
    void addAccountRoutes();
    struct StoredProfile {
        std::string page; ///< last part of the form's address
        Json values;
    };
    StoredProfile storedProfile(const Account& account);
    Answer profile(const Call& call);
    Answer profileForm(const Call& call);
    Answer suggestion(const Call& call);
    Json suggestions();

    // Orders of menus, and what the order list asks for.
    void addOrderRoutes();
    Answer saveBrochure(const Call& call);
    Answer storeBrochure(const Call& call, const Json& body, std::int64_t customer);
    struct ListFilter;
    Answer orderList(const Call& call);
    Answer deleteOrder(const Call& call);
    Answer claimOrder(const Call& call);
    Answer demandQr(const Call& call);

    // Promotions, and the mails of every sort of order.
    void addPromotionRoutes();
    Answer sendPromotion(const Call& call);
    /// What would go to each address once; blank ones get nothing.
    void mail(const Account& account, const Order& order, const std::vector<std::string>& recipients,
              const std::string& subject);
    Json mails();

    // Textile, selling sheets.
    void addMaterialRoutes();
    Answer saveTextile(const Call& call);
    Answer sendSheet(const Call& call);
    Answer deleteSheet(const Call& call);

    void addActivationRoutes();
    Answer sendActivation(const Call& call);

    // Pictures, fonts, PDFs, pages, films.
    void addFileRoutes();
    void addTutorialRoutes();
    Answer pdf(const std::string& name);
    Answer madePdf(const std::string& file, const std::function<QByteArray()>& make);

    // What tests ask for.
    void addTestRoutes();
    Answer setState(const Call& call);
    Json storedOrders(bool withHistory);

    struct Route {
        std::string method;
        std::regex pattern;
        std::function<void(const httplib::Request&, httplib::Response&)> run;
    };

    Options options_;
    std::unique_ptr<httplib::Server> http_;
    std::vector<Route> routes_;
    int port_ = 0;
    std::string baseUrl_;
    Catalogue catalogue_;
    std::shared_ptr<const std::string> catalogueText_;
    Studio studio_;
    Database database_;
    Accounts accounts_;
    Orders orders_;
    FaultSwitches faults_;
    RequestLog log_;
    std::mutex writeMutex_; ///< one order at a time: the same key twice at once must not make two
    std::mutex pdfMutex_;
};

} // namespace kavor::demo
