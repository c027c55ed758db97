#pragma once

#include "catalogue/Brands.h"
#include "catalogue/PictureBook.h"
#include "catalogue/Styles.h"

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace kavor::demo {

/// The fictional catalogue: the document that clients fetch, and look-ups for the server's own use.
class Catalogue {
public:
    /// `baseUrl` is where the pictures and documents named inside are served, without a final slash.
    Catalogue(int numberOfBrands, const std::string& baseUrl);

    /// The whole document as JSON text.
    const std::string& text() const { return text_; }

    std::span<const Brand> brands() const { return brands_; }
    std::span<const Style> styles() const { return styles_; }

    /// None for an id that the catalogue does not hold.
    const Brand* brand(int id) const;
    const Format* format(int formatId) const;
    const Brand* brandOfFormat(int formatId) const;
    const Style* style(int id) const;

    /// The record of a brand as it stands in the document.
    std::optional<Json> product(int brandId) const;

    /// The subtree "textil".
    const Json& textile() const { return textile_; }

    const PictureBook& book() const { return book_; }
    const std::string& baseUrl() const { return book_.baseUrl(); }

    /// Messages of the login answer, with their pictures.
    const Json& notifications() const { return notifications_; }

private:
    std::string makeText();

    std::vector<Brand> brands_;
    std::vector<Style> styles_;
    PictureBook book_;
    Json notifications_;
    Json textile_;
    std::vector<std::pair<size_t, size_t>> productPlaces_; ///< where each brand stands in the text
    std::string text_;
};

/// What of a brand's look decides its drawings, as text.
std::string lookText(const Look& look);

} // namespace kavor::demo
