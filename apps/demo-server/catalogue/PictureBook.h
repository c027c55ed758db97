#pragma once

#include "Json.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kavor::demo {

/// Every sort of picture that the server draws; the comment names what `a`, `b` and `c` of a Picture are.
enum class PictureKind {
    emblem,               // brand
    wordmark,             // brand
    vessel,               // brand, place of the format
    vesselThumb,          // brand, place of the format
    box,                  // brand, place of the format
    coverFront,           // style
    coverBack,            // style
    coverThumb,           // style
    servingType,          // product type
    taste,                // taste, segment
    segment,              // segment
    chalkboardFormat,     // format, 1 when selected
    orderSheet,           // order sheet
    pennantThumb,         // pennant brand
    pennantSample,        // pennant brand
    qrSticker,            // brand
    qrBlock,              // brand
    poster,               // promotion, language
    support,              // support type
    sheetStyle,           // selling sheet style
    activationLogo,       // definition
    activationBackground, // definition
    activationSign,       // activation, 1 when on
    activationScene,      // activation, number
    garment,              // garment type, colour, brand
    manual,               // manual
    notice,               // notification
};

/// What to draw: a sort of picture and up to three numbers that say of what.
struct Picture {
    PictureKind kind = PictureKind::emblem;
    int a = 0, b = 0, c = 0;
};

/// The pictures and documents that the catalogue names, by hash. The hash is made from the drawing's
/// parameters, so that a picture keeps its hash from run to run and gets another one when it would look
/// different.
class PictureBook {
public:
    explicit PictureBook(std::string baseUrl)
        : baseUrl_(std::move(baseUrl)) {}

    /// The record of a picture ("hash", "path", "download_type"); `look` holds what else decides the drawing.
    /// An unlisted one stands in its record only, not in the flat list.
    Json resource(const Picture& picture, std::string_view look, int downloadType, bool listed = true);

    /// The record of a document or page of the server at a path of its own.
    Json document(const std::string& path, int downloadType);

    /// The address of a picture, for fields that are plain texts.
    std::string address(const Picture& picture, std::string_view look);

    /// The picture with this hash, none when the catalogue names none.
    std::optional<Picture> find(const std::string& hash) const;

    /// The flat list of the listed records, as JSON text.
    std::string listText() const { return "[" + list_ + "]"; }

    const std::string& baseUrl() const { return baseUrl_; }

private:
    std::string remember(const Picture& picture, std::string_view look);
    Json record(const std::string& hash, const std::string& path, int downloadType, bool listed);

    std::string baseUrl_;
    std::unordered_map<std::string, Picture> pictures_;
    std::unordered_map<std::string, int> listed_; // hash to download class
    std::string list_;
};

} // namespace kavor::demo
