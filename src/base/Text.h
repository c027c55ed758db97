#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What the user sees as characters and letters, by ICU.
namespace kavor::text {

// The number of user-perceived characters: a flag or a letter with a combining accent counts one.
std::size_t characterCount(std::string_view utf8);

// The first characters of a text, cut between user-perceived characters.
std::string firstCharacters(std::string_view utf8, std::size_t count);

// A text as names are compared in searches: without diacritics, in lower case, and reduced to the Latin
// letters, digits, blanks and "-.!_".
std::string sanitised(std::string_view utf8);

} // namespace kavor::text
