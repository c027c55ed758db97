#pragma once

#include "catalogue/ApplicationInformation.h"
#include "catalogue/BrochuresTables.h"
#include "catalogue/SectionTables.h"

namespace kavor::json {

template <>
struct Table<ApplicationInformation::AttributeType> {
    using R = ApplicationInformation::AttributeType;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("name", &R::name),
                                              optional("description", &R::description),
                                              optional("regex", &R::regex), optional("format", &R::format)};
};

template <>
struct Table<ApplicationInformation::Manual> {
    using R = ApplicationInformation::Manual;
    static constexpr auto fields = std::tuple{
        required("type", &R::type),   required("label", &R::label), required("position", &R::position),
        required("thumb", &R::thumb), required("video", &R::video), required("video_token", &R::videoToken)};
};

template <>
struct Table<ApplicationInformation::OwnBrandDescription> {
    using R = ApplicationInformation::OwnBrandDescription;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("description", &R::description)};
};

template <>
struct Table<ApplicationInformation> {
    using R = ApplicationInformation;
    static constexpr auto fields =
        std::tuple{required("validaciones", &R::validations),
                   required("maridaje", &R::pairings),
                   required("suggestion_mailbox_categories", &R::suggestionCategories),
                   required("productos", &R::products),
                   optional("cartas", &R::brochures),
                   required("attribute_types", &R::attributesTypes),
                   optional("carteleria", &R::promotion),
                   optional("hoja_vendedora", &R::sellingSheet),
                   optional("activaciones", &R::activations),
                   optional("textil", &R::textile),
                   required("images", &R::images),
                   required("manuales", &R::manuals),
                   optional("own_brand_descriptions", &R::ownBrandDescriptions)};
};

} // namespace kavor::json
