#include "textile/TextileArticles.h"

#include "base/StopProcess.h"
#include "session/AppSingleton.h"

#include <utility>

namespace kavor {

namespace {

template <class Record>
void indexList(std::unordered_map<Int, const Record*>& index, const std::vector<Record>& list) {
    index.reserve(list.size());
    for (const Record& record : list)
        index.try_emplace(record.identifier, &record);
}

template <class Key, class Record>
const Record* find(const std::unordered_map<Key, const Record*>& index, const Key& key) {
    const auto found = index.find(key);
    return found == index.end() ? nullptr : found->second;
}

} // namespace

TextileUniqueItem uniqueItemOf(const Textile::Item& article) {
    return {article.brandIdentifier, article.typeIdentifier, article.genderIdentifier,
            article.colorIdentifier};
}

TextileArticles::TextileArticles(std::shared_ptr<const Catalogue> catalogue)
    : catalogue_(std::move(catalogue)) {
    const Textile& all = textile();
    for (const Textile::Item& article : all.items) {
        const TextileUniqueItem item = uniqueItemOf(article);
        brands_.insert(item.brandIdentifier);
        formats_.insert({item.brandIdentifier, item.formatIdentifier, item.genderIdentifier});
        items_[item].push_back(&article);
        sized_[item].try_emplace(article.sizeIdentifier, &article);
    }
    indexList(types_, all.types);
    indexList(genders_, all.genders);
    indexList(colors_, all.colors);
    indexList(sizes_, all.sizes);
    indexList(typographies_, all.typographies);
}

const TextileArticles& TextileArticles::current() {
    static std::unique_ptr<const TextileArticles> built;
    const auto& catalogue = AppSingleton::shared().applicationInformation;
    if (!catalogue)
        stopProcess("catalogue");
    if (!built || built->catalogue_ != catalogue)
        built = std::make_unique<const TextileArticles>(catalogue);
    return *built;
}

const Textile& TextileArticles::textile() const {
    if (!catalogue_->information().textile)
        stopProcess("textile catalogue");
    return *catalogue_->information().textile;
}

const std::vector<const Textile::Item*>& TextileArticles::articlesOf(const TextileUniqueItem& item) const {
    static const std::vector<const Textile::Item*> none;
    const auto found = items_.find(item);
    return found == items_.end() ? none : found->second;
}

const Textile::Item* TextileArticles::article(const TextileUniqueItem& item, Int size) const {
    const auto found = sized_.find(item);
    return found == sized_.end() ? nullptr : find(found->second, size);
}

const Textile::Item* TextileArticles::article(Int identifier) const {
    return catalogue_->textileItem(identifier);
}
const Textile::Type* TextileArticles::type(Int identifier) const {
    return find(types_, identifier);
}
const Textile::Gender* TextileArticles::gender(Int identifier) const {
    return find(genders_, identifier);
}
const Textile::Color* TextileArticles::color(Int identifier) const {
    return find(colors_, identifier);
}
const Textile::Size* TextileArticles::size(Int identifier) const {
    return find(sizes_, identifier);
}
const Textile::Typography* TextileArticles::typography(Int identifier) const {
    return find(typographies_, identifier);
}

} // namespace kavor
