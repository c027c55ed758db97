#pragma once

#include <string>
#include <vector>

namespace kavor::remembered_emails {

inline constexpr std::size_t most = 12;

// The addresses that sheets were stored or sent with, the latest first, from the state file
// "sellingSheetEmails".
std::vector<std::string> all();
// Puts these in front, without empty ones and with none twice.
void remember(const std::vector<std::string>& addresses);

} // namespace kavor::remembered_emails
