#pragma once

#include <cstddef>
#include <string>

namespace kavor::bench {

// A catalogue document of about the given size, the demonstration server's with as many brands as it takes.
const std::string& catalogueOfMegabytes(std::size_t megabytes);
// A catalogue document with this many brands.
std::string catalogueOfBrands(int brands);

// The same document written in other ways.
std::string indented(const std::string& document);
std::string withEscapes(const std::string& document);      // every letter "e" of a text as an escape
std::string withKeysReversed(const std::string& document); // the keys of every object in the opposite order
std::string withKeysShuffled(const std::string& document); // in an order of its own for every object

} // namespace kavor::bench
