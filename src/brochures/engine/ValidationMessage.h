#pragma once

#include <string>

namespace kavor {

// What of the menu a sentence of the check is about.
enum class ValidationPlace {
    outputFormat,
    languages,
    quantity,
    customerCode,
    customerTexts,
    customerName,
    customerEmail,
    customerTelephone,
    customerContact,
    blackboardFormat,
    blackboardType,
    brands,
    drinks,
    printedStyle,
    logos,
    onlineStyle,
    prices
};

// A rule that fails.
struct ValidationMessage {
    std::string sentence; // for the user, to the letter
    ValidationPlace place;
};

} // namespace kavor
