#pragma once

#include <filesystem>
#include <string>
#include <tl/expected.hpp>

namespace kavor {

// Where the server is: the content of the property list "NetworkConfiguration.plist" (XML or binary), one
// dictionary under the key "urls" whose keys are the names of these members, every one a required string.
struct NetworkConfiguration {
    struct ServerURLs {
        std::string baseURLDev;       // read, never used for a request
        std::string baseURLPro;       // in front of every relative path
        std::string firstTimeUserURL; // read, never used: the first-time action opens forgotPasswordURL
        std::string forgotPasswordURL;
        std::string loginURL;
        std::string getCustomerDataFromTevoCodeURL;
        std::string appInformationURL;
        std::string priceRecommendationURL;
        std::string searchMapsURL;
        std::string profileInformationURL;
        std::string sellingSheetOrderListURL;
        std::string sellingSheetOrderSendURL;
        std::string sellingSheetOrderDeleteURL;
        std::string promotionOrderSendURL;
        std::string saveOrderURL;
        std::string retrieveBrochureOrderListURL;
        std::string retrieveBrochureOrderURL;
        std::string activationOrderURL;
        std::string activationUserQuota;
        std::string sendRawOrder;
        std::string createTextileOrder;
        std::string retrieveTextileOrder;
        std::string deleteOrder;
        std::string userInformation;
        std::string menuMantelOnline; // kept; no operation reads it
        std::string claimOrder;
        std::string demandBrandQr;
        std::string suggestionMailboxAdd;
    };

    ServerURLs urls;

    // The error names file and key: `FILE: key "urls.loginURL": missing`.
    static tl::expected<NetworkConfiguration, std::string> load(const std::filesystem::path& file);
    // The same from the bytes of a property list; `name` stands for the file in the error.
    static tl::expected<NetworkConfiguration, std::string> decode(const std::string& bytes,
                                                                  const std::string& name);
};

} // namespace kavor
