#pragma once

#include <span>
#include <string_view>

// What is fuzzed: everything that decodes what comes from outside. A target takes any bytes; it ends the
// process through fail() when a promise does not hold, and answers whether the bytes were a document. The
// same targets run over fuzz/corpus in the tests.
namespace kavor::fuzz {

// Prints the broken promise and aborts.
[[noreturn]] void fail(std::string_view promise);

bool catalogue(std::string_view document);
bool login(std::string_view document);
bool brochureOrder(std::string_view document);
bool textileOrder(std::string_view document);
bool textileAnswer(std::string_view document);
bool textileDraft(std::string_view document);
bool sellingSheetOrder(std::string_view document);
bool orderList(std::string_view document);
bool retrieveAnswer(std::string_view document);
bool propertyList(std::string_view document);
bool urlParser(std::string_view text);

struct Target {
    std::string_view name; // also of its folder of the corpus
    bool (*run)(std::string_view);
};
std::span<const Target> targets();

} // namespace kavor::fuzz
