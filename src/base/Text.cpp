#include "base/Text.h"

#include "base/StopProcess.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>

namespace kavor::text {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

icu::UnicodeString unicode(std::string_view utf8) {
    return icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), static_cast<int32_t>(utf8.size())));
}

std::unique_ptr<icu::BreakIterator> characters() {
    static const std::unique_ptr<icu::BreakIterator> prototype = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::BreakIterator> made(
            icu::BreakIterator::createCharacterInstance(icu::Locale("es", "ES"), status));
        if (U_FAILURE(status) || !made)
            stopProcess("character boundaries of the text library");
        return made;
    }();
    return std::unique_ptr<icu::BreakIterator>(prototype->clone());
}

} // namespace

std::size_t characterCount(std::string_view utf8) {
    if (isAscii(utf8) && utf8.find('\r') == std::string_view::npos)
        return utf8.size();
    const icu::UnicodeString text = unicode(utf8);
    const auto iterator = characters();
    iterator->setText(text);
    std::size_t count = 0;
    while (iterator->next() != icu::BreakIterator::DONE)
        ++count;
    return count;
}

std::string firstCharacters(std::string_view utf8, std::size_t count) {
    const icu::UnicodeString text = unicode(utf8);
    const auto iterator = characters();
    iterator->setText(text);
    int32_t end = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const int32_t next = iterator->next();
        if (next == icu::BreakIterator::DONE)
            break;
        end = next;
    }
    std::string result;
    text.tempSubString(0, end).toUTF8String(result);
    return result;
}

std::string sanitised(std::string_view utf8) {
    // The doubled K stands in the server's own list of letters.
    static constexpr std::string_view kept =
        "abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLKMNOPQRSTUVWXYZ1234567890-.!_";
    const auto keep = [](std::string text) {
        std::erase_if(text, [](char c) { return kept.find(c) == std::string_view::npos; });
        return text;
    };
    if (isAscii(utf8)) {
        std::string lower(utf8);
        std::transform(lower.begin(), lower.end(), lower.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
        return keep(std::move(lower));
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* decomposer = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status))
        stopProcess("decomposition of the text library");
    const icu::UnicodeString decomposed = decomposer->normalize(unicode(utf8), status);
    icu::UnicodeString plain;
    for (int32_t i = 0; i < decomposed.length(); i = decomposed.moveIndex32(i, 1)) {
        const UChar32 c = decomposed.char32At(i);
        if (u_charType(c) != U_NON_SPACING_MARK)
            plain.append(c);
    }
    plain.toLower(icu::Locale("es", "ES"));
    std::string result;
    plain.toUTF8String(result);
    return keep(std::move(result));
}

} // namespace kavor::text
