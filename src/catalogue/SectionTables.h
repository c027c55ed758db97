#pragma once

#include "catalogue/ActivationsInformation.h"
#include "catalogue/SellingSheet.h"
#include "catalogue/SharedTables.h"
#include "catalogue/Textile.h"

namespace kavor::json {

template <>
struct Table<SellingSheet::Validation> {
    using R = SellingSheet::Validation;
    static constexpr auto fields = std::tuple{required("longitud_titulo", &R::titleLength),
                                              required("longitud_subtitulo", &R::subtitleLenth),
                                              required("longitud_free_text", &R::freeTextLength)};
};

template <>
struct Table<SellingSheet::Style> {
    using R = SellingSheet::Style;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("position", &R::position),
                   required("image", &R::image)};
};

template <>
struct Table<SellingSheet> {
    using R = SellingSheet;
    static constexpr auto fields =
        std::tuple{required("validaciones", &R::validations), required("estilos", &R::styles)};
};

template <>
struct Table<ActivationInformation::ImageInfo> {
    using R = ActivationInformation::ImageInfo;
    static constexpr auto fields =
        std::tuple{required("image", &R::image), required("position", &R::position)};
};

template <>
struct Table<ActivationInformation::Attribute> {
    using R = ActivationInformation::Attribute;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("type_id", &R::typeId),
                                              required("position", &R::position),
                                              required("name", &R::name),
                                              required("description", &R::description),
                                              required("required", &R::required),
                                              optional("regex", &R::fieldValidation)};
};

template <>
struct Table<ActivationInformation::Item> {
    using R = ActivationInformation::Item;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("position", &R::position),
                                              required("name", &R::name),
                                              required("required", &R::required),
                                              optional("description", &R::description),
                                              required("images", &R::imagesList)};
};

template <>
struct Table<ActivationInformation> {
    using R = ActivationInformation;
    static constexpr auto fields =
        std::tuple{required("id", &R::id),
                   required("position", &R::position),
                   required("name", &R::name),
                   required("description", &R::description),
                   optional("color", &R::color),
                   required("image_on", &R::imageOn),
                   required("image_off", &R::imageOff),
                   optional("image_background", &R::imageBackground),
                   required("image_w", &R::imageWidth),
                   required("image_h", &R::imageHeight),
                   required("image_x", &R::imageX),
                   required("image_y", &R::imageY),
                   required("image_rotate", &R::imageRotate),
                   optional("archive", &R::detailsPDF),
                   optional("date_from", &R::dateFrom),
                   optional("date_to", &R::dateTo),
                   required("agency_name", &R::agencyName),
                   required("agency_description", &R::agencyDescription),
                   required("previous_days", &R::antelationDays),
                   required("x_quota", &R::quotaX),
                   required("y_quota", &R::quotaY),
                   required("w_quota", &R::quotaW),
                   required("h_quota", &R::quotaH),
                   required("size_quota", &R::quotaSize),
                   required("quota", &R::quota),
                   required("number_made", &R::numberMade),
                   required("allow_activation_relation", &R::canBeRelatedWithAnotherActivations),
                   required("atributos", &R::attributesList),
                   required("items", &R::itemsList),
                   required("image", &R::imagesList)};
};

template <>
struct Table<ActivationsInformation::Definition> {
    using R = ActivationsInformation::Definition;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("brand_id", &R::brandId),
                                              required("brand_name", &R::brandName),
                                              required("name", &R::name),
                                              optional("background_color", &R::backgroundColor),
                                              optional("image_background", &R::imageBackground),
                                              required("image_logo", &R::imageLogo),
                                              required("image_w", &R::imageWidth),
                                              required("image_h", &R::imageHeight),
                                              required("image_x", &R::imageX),
                                              required("image_y", &R::imageY),
                                              required("image_rotate", &R::imageRotate),
                                              required("activaciones", &R::activationsList)};
};

template <>
struct Table<ActivationsInformation> {
    using R = ActivationsInformation;
    static constexpr auto fields = std::tuple{required("definiciones", &R::definitionsList)};
};

template <>
struct Table<Textile::Validations> {
    using R = Textile::Validations;
    static constexpr auto fields =
        std::tuple{required("order_min", &R::minimumOrderAmount),
                   required("message_max", &R::maximumNumberOfCharactersForMessage)};
};

template <>
struct Table<Textile::Type> {
    using R = Textile::Type;
    static constexpr auto fields = std::tuple{
        required("id", &R::identifier), required("position", &R::position), required("name", &R::name),
        required("order_min", &R::minimumAmount), required("order_max", &R::maximumAmount)};
};

template <>
struct Table<Textile::Gender> {
    using R = Textile::Gender;
    static constexpr auto fields = std::tuple{required("id", &R::identifier),
                                              required("position", &R::position), required("name", &R::name)};
};

template <>
struct Table<Textile::Color> {
    using R = Textile::Color;
    static constexpr auto fields =
        std::tuple{required("id", &R::identifier), required("position", &R::position),
                   required("name", &R::name), required("color", &R::colorString)};
};

template <>
struct Table<Textile::Size> {
    using R = Textile::Size;
    static constexpr auto fields =
        std::tuple{required("id", &R::identifier), required("position", &R::position),
                   required("name", &R::name), required("code", &R::code)};
};

template <>
struct Table<Textile::Typography> {
    using R = Textile::Typography;
    static constexpr auto fields =
        std::tuple{required("id", &R::identifier),       required("position", &R::position),
                   required("name", &R::postScriptName), required("font", &R::filename),
                   required("url_font", &R::fontURL),    required("mime", &R::mimetype)};
};

template <>
struct Table<Textile::Item> {
    using R = Textile::Item;
    static constexpr auto fields = std::tuple{required("id", &R::identifier),
                                              required("application_father_id", &R::applicationFather),
                                              required("application_type_id", &R::applicationType),
                                              required("position", &R::position),
                                              required("brand_id", &R::brandIdentifier),
                                              required("type_id", &R::typeIdentifier),
                                              required("model_id", &R::genderIdentifier),
                                              required("color_id", &R::colorIdentifier),
                                              required("size_id", &R::sizeIdentifier),
                                              required("by_default", &R::isDefault),
                                              required("image", &R::image)};
};

template <>
struct Table<Textile> {
    using R = Textile;
    static constexpr auto fields = std::tuple{required("validaciones", &R::validations),
                                              required("textil_type", &R::types),
                                              required("textil_model", &R::genders),
                                              required("textil_color", &R::colors),
                                              required("textil_size", &R::sizes),
                                              required("textil_typography", &R::typographies),
                                              required("textil", &R::items)};
};

} // namespace kavor::json
