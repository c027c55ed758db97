#pragma once

#include <string>

namespace kavor::demo {

/// A page for the browser around a content that is HTML already; title and subtitle are texts.
std::string pageOf(const std::string& title, const std::string& subtitle, const std::string& content);

/// A text with the characters escaped that mean something in HTML.
std::string escaped(const std::string& text);

} // namespace kavor::demo
