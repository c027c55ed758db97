#include "catalogue/PictureBook.h"

#include "catalogue/Dice.h"

#include <array>
#include <cstdio>

namespace kavor::demo {

namespace {

/// Raised when the drawings change, so that devices fetch them again.
constexpr std::string_view drawingVersion = "1";

std::string hexMark(std::string_view text) {
    std::array<char, 33> hex{};
    std::snprintf(hex.data(), hex.size(), "%016llx%016llx", static_cast<unsigned long long>(markOf(text)),
                  static_cast<unsigned long long>(markOf(text, 0x84222325CBF29CE4ull)));
    return hex.data();
}

} // namespace

std::string PictureBook::remember(const Picture& picture, std::string_view look) {
    std::string parameters(drawingVersion);
    for (const int part : {int(picture.kind), picture.a, picture.b, picture.c}) {
        parameters += ' ';
        parameters += std::to_string(part);
    }
    parameters += ' ';
    parameters += look;
    std::string hash = hexMark(parameters);
    pictures_.try_emplace(hash, picture);
    return hash;
}

Json PictureBook::record(const std::string& hash, const std::string& path, int downloadType, bool listed) {
    const auto [entry, fresh] = listed_.try_emplace(hash, downloadType);
    Json record = {{"hash", hash}, {"path", path}, {"download_type", entry->second}};
    if (fresh && listed) {
        list_ += list_.empty() ? "" : ",";
        list_ += record.dump();
    }
    return record;
}

Json PictureBook::resource(const Picture& picture, std::string_view look, int downloadType, bool listed) {
    const std::string hash = remember(picture, look);
    return record(hash, baseUrl_ + "/img/" + hash + ".png", downloadType, listed);
}

Json PictureBook::document(const std::string& path, int downloadType) {
    return record(hexMark(path), baseUrl_ + path, downloadType, true);
}

std::string PictureBook::address(const Picture& picture, std::string_view look) {
    return baseUrl_ + "/img/" + remember(picture, look) + ".png";
}

std::optional<Picture> PictureBook::find(const std::string& hash) const {
    const auto found = pictures_.find(hash);
    return found == pictures_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace kavor::demo
