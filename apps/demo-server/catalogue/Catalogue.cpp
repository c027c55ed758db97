#include "catalogue/Catalogue.h"

#include "catalogue/Activations.h"
#include "catalogue/Content.h"
#include "catalogue/Sections.h"

namespace kavor::demo {

namespace {

Json validations(PictureBook& book) {
    return {
        {"categoria_nombre", 30},
        {"categoria_descripcion", 80},
        {"producto_nombre", 40},
        {"producto_descripcion", 90},
        {"product_format_length", 20},
        {"product_format_number", 3},
        {"customer_facebook", 60},
        {"customer_twitter", 30},
        {"customer_instagram", 30},
        {"customer_local_phone", 20},
        {"customer_url", 80},
        {"customer_free_text", 120},
        {"with_print_qr", true},
        {"cartas_qr_quantity", Json(qrTableQuantities)},
        {"cartas_qr_quantity_circle", Json(qrDoorQuantities)},
        {"cartas_qr_quantity_taco", Json(qrBlockQuantities)},
        {"with_printed_myself", true},
        {"default_printed_myself", false},
        {"printed_myself_helptext",
         "Recibirás el PDF en alta resolución en tu correo para imprimirlo por tu cuenta."},
        {"printed_kavor_helptext", "El programa imprime el material y lo entrega en el local en cinco días."},
        {"pennant_helptext",
         "Los banderines acompañan a la carta: elige un estilo y hasta ocho referencias."},
        {"promotion_hour_day_init", "6"},
        {"archive_price", book.document("/documentos/precios.pdf", 3)},
        {"archive_price_secondary", book.document("/documentos/precios-bebidas.pdf", 3)},
        {"manteleria_support_text", "El código QR lleva a la carta online del establecimiento."},
    };
}

Json pairings() {
    Json list = Json::array();
    int id = 1;
    for (const char* name : pairingNames()) {
        list.push_back({{"id", id}, {"name", name}, {"position", id}});
        ++id;
    }
    return list;
}

Json mailboxCategories() {
    Json list = Json::array();
    for (const char* name : suggestionCategories()) {
        list.push_back({{"id", int(list.size()) + 1}, {"name", name}});
    }
    return list;
}

Json attributeTypes() {
    return {
        {{"id", 1},
         {"name", "Texto"},
         {"description", "Texto libre"},
         {"regex", nullptr},
         {"format", "text"}},
        {{"id", 2}, {"name", "Logotipo"}, {"description", "Imagen del local"}, {"format", "image"}},
        {{"id", 3},
         {"name", "Precio"},
         {"description", "Importe en euros"},
         {"regex", "^[0-9]+([.,][0-9]{1,2})?$"}},
        {{"id", 4}, {"name", "Lista"}},
        {{"id", 5},
         {"name", "Hora"},
         {"description", "hh:mm"},
         {"regex", "^([01][0-9]|2[0-3]):[0-5][0-9]$"},
         {"format", "time"}},
    };
}

Json manualRecords(PictureBook& book) {
    Json list = Json::array();
    for (const Manual& manual : manuals()) {
        const std::string number = std::to_string(manual.id);
        list.push_back({{"type", manual.type},
                        {"label", manual.label},
                        {"position", manual.id},
                        {"thumb", book.resource({PictureKind::manual, manual.id}, manual.label, 2)},
                        {"video", book.document("/tutoriales/" + number + ".mp4", 3)},
                        {"video_token", book.document("/tutoriales/" + number + "/token", 3)}});
    }
    return list;
}

Json notificationRecords(PictureBook& book) {
    Json list = Json::array();
    for (const Notice& notice : notices()) {
        list.push_back({{"title", notice.title},
                        {"description", notice.description},
                        {"image", book.address({PictureKind::notice, notice.id}, notice.title)}});
    }
    return list;
}

void appendMember(std::string& text, const char* key, const std::string& value) {
    text += text.size() > 1 ? ",\"" : "\"";
    text += key;
    text += "\":";
    text += value;
}

} // namespace

std::string lookText(const Look& look) {
    std::string text = look.name;
    for (const int part : {look.base, look.accent, look.paper, look.liquid, look.bottleGlass, look.emblem,
                           look.label, look.pattern, look.motif}) {
        text += ' ';
        text += std::to_string(part);
    }
    return text;
}

Catalogue::Catalogue(int numberOfBrands, const std::string& baseUrl)
    : brands_(makeBrands(numberOfBrands))
    , styles_(makeStyles(brands_))
    , book_(baseUrl)
    , notifications_(notificationRecords(book_))
    , textile_(textileSection(brands_, book_))
    , text_(makeText()) {}

/// Brands are written one by one, so that a catalogue of 100 MB never stands in memory as a tree.
std::string Catalogue::makeText() {
    std::string products = "[";
    for (const Brand& brand : brands_) {
        products += products.size() > 1 ? "," : "";
        const std::string record = productRecord(brand, book_).dump();
        productPlaces_.emplace_back(products.size(), record.size());
        products += record;
    }
    products += "]";

    std::string text = "{";
    appendMember(text, "validaciones", validations(book_).dump());
    appendMember(text, "maridaje", pairings().dump());
    appendMember(text, "suggestion_mailbox_categories", mailboxCategories().dump());
    appendMember(text, "productos", products);
    for (auto& place : productPlaces_) {
        place.first += text.size() - products.size();
    }
    appendMember(text, "cartas", brochuresSection(brands_, styles_, book_).dump());
    appendMember(text, "attribute_types", attributeTypes().dump());
    appendMember(text, "carteleria", postersSection(brands_, book_, false).dump());
    appendMember(text, "hoja_vendedora", sellingSheetSection(book_).dump());
    appendMember(text, "activaciones", activationsSection(brands_, book_).dump());
    appendMember(text, "textil", textile_.dump());
    appendMember(text, "manuales", manualRecords(book_).dump());
    appendMember(text, "images", book_.listText());
    return text + "}";
}

const Brand* Catalogue::brand(int id) const {
    return id >= 1 && id <= int(brands_.size()) ? &brands_[size_t(id) - 1] : nullptr;
}

const Brand* Catalogue::brandOfFormat(int formatId) const {
    return brand(formatId / 10);
}

const Format* Catalogue::format(int formatId) const {
    if (const Brand* owner = brandOfFormat(formatId)) {
        for (const Format& format : owner->formats) {
            if (format.id == formatId) {
                return &format;
            }
        }
    }
    return nullptr;
}

std::optional<Json> Catalogue::product(int brandId) const {
    if (!brand(brandId)) {
        return std::nullopt;
    }
    const auto& [start, length] = productPlaces_[size_t(brandId) - 1];
    return Json::parse(text_.begin() + std::ptrdiff_t(start), text_.begin() + std::ptrdiff_t(start + length));
}

const Style* Catalogue::style(int id) const {
    for (const Style& style : styles_) {
        if (style.id == id) {
            return &style;
        }
    }
    return nullptr;
}

} // namespace kavor::demo
