#pragma once

#include "catalogue/Catalogue.h"
#include "textile/TripleTuple.h"

#include <array>
#include <compare>
#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace kavor {

// What identifies a line of a textile cart up to its sizes.
struct TextileUniqueItem {
    Int brandIdentifier = 0;
    Int formatIdentifier = 0;
    Int genderIdentifier = 0;
    Int colorIdentifier = 0;
    auto operator<=>(const TextileUniqueItem&) const = default;
};

TextileUniqueItem uniqueItemOf(const Textile::Item& article);

} // namespace kavor

template <>
struct std::hash<kavor::TextileUniqueItem> {
    std::size_t operator()(const kavor::TextileUniqueItem& key) const noexcept {
        return kavor::hashOf(
            std::array{key.brandIdentifier, key.formatIdentifier, key.genderIdentifier, key.colorIdentifier});
    }
};

namespace kavor {

// The articles of a textile catalogue by what they are asked for, indexed once; all of them, whatever section
// they belong to. What occurs twice means its first record. Look-ups are constant time.
class TextileArticles {
public:
    // The process stops for a catalogue without "textil".
    explicit TextileArticles(std::shared_ptr<const Catalogue> catalogue);

    // Of the session's catalogue, built when that is another one than last time. The process stops without a
    // textile catalogue. Main thread only.
    static const TextileArticles& current();

    [[nodiscard]] const Textile& textile() const;
    [[nodiscard]] const Catalogue& catalogue() const { return *catalogue_; }

    [[nodiscard]] bool hasBrand(Int brand) const { return brands_.contains(brand); }
    // Of brand, format and model.
    [[nodiscard]] bool hasFormat(const TripleTuple& format) const { return formats_.contains(format); }
    [[nodiscard]] bool has(const TextileUniqueItem& item) const { return items_.contains(item); }
    // The articles of a combination, in the order of the catalogue.
    [[nodiscard]] const std::vector<const Textile::Item*>& articlesOf(const TextileUniqueItem& item) const;
    // The first article of the combination in this size.
    [[nodiscard]] const Textile::Item* article(const TextileUniqueItem& item, Int size) const;
    // By the number that an order line bears.
    [[nodiscard]] const Textile::Item* article(Int identifier) const;

    [[nodiscard]] const Textile::Type* type(Int identifier) const;
    [[nodiscard]] const Textile::Gender* gender(Int identifier) const;
    [[nodiscard]] const Textile::Color* color(Int identifier) const;
    [[nodiscard]] const Textile::Size* size(Int identifier) const;
    [[nodiscard]] const Textile::Typography* typography(Int identifier) const;

private:
    template <class Record>
    using Index = std::unordered_map<Int, const Record*>;

    std::shared_ptr<const Catalogue> catalogue_;
    std::unordered_set<Int> brands_;
    std::unordered_set<TripleTuple> formats_;
    std::unordered_map<TextileUniqueItem, std::vector<const Textile::Item*>> items_;
    // The first articles by combination and size.
    std::unordered_map<TextileUniqueItem, Index<Textile::Item>> sized_;
    Index<Textile::Type> types_;
    Index<Textile::Gender> genders_;
    Index<Textile::Color> colors_;
    Index<Textile::Size> sizes_;
    Index<Textile::Typography> typographies_;
};

} // namespace kavor
