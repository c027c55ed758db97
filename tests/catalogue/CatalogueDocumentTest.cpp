#include "base/json/Json.h"
#include "catalogue/ApplicationInformation.h"
#include "support/JsonData.h"

#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <set>

namespace kavor {

namespace {

JsonData document() {
    return JsonData::ofFile(KAVOR_TEST_DATA "/catalogue.json");
}

std::string fault(const JsonData& data) {
    const auto decoded = json::decode<ApplicationInformation>(data.text());
    return decoded ? "" : decoded.error().text();
}

// The members that a catalogue may leave out, by their path without indexes.
const std::set<std::string> optionalMembers{"cartas",
                                            "carteleria",
                                            "hoja_vendedora",
                                            "activaciones",
                                            "textil",
                                            "validaciones.archive_price",
                                            "validaciones.archive_price_secondary",
                                            "attribute_types.description",
                                            "attribute_types.regex",
                                            "attribute_types.format",
                                            "productos.image",
                                            "productos.amargor",
                                            "productos.maridaje",
                                            "productos.maridaje_label",
                                            "productos.category",
                                            "productos.category.category_label_all",
                                            "productos.category.category_label",
                                            "productos.category.segment_id",
                                            "productos.category.typology_id",
                                            "productos.category.sub_typology_id",
                                            "productos.category.taste_id",
                                            "productos.category.age_id",
                                            "productos.productlist.image",
                                            "productos.productlist.image_thumb",
                                            "productos.productlist.bottles_box_image",
                                            "productos.productlist.bottles_box",
                                            "productos.productlist.quantity_min",
                                            "productos.productlist.quantity_max",
                                            "productos.productlist.price",
                                            "cartas.product_types.image",
                                            "cartas.product_types.image_thumb",
                                            "cartas.product_types.factor_correction",
                                            "cartas.product_types.image_tastes",
                                            "cartas.product_types.image_tastes.taste_id",
                                            "cartas.brand_typologies.color_text",
                                            "cartas.brand_typologies.color",
                                            "cartas.brand_tastes.color_text",
                                            "cartas.brand_tastes.color",
                                            "cartas.brand_segments.segment_image",
                                            "cartas.estilos.blackboard_format_type_id",
                                            "cartas.estilos.application_father_id",
                                            "cartas.cartatipos.parametros",
                                            "cartas.cartatipos.parametros.marca_min_main",
                                            "cartas.cartatipos.parametros.marca_min",
                                            "cartas.cartatipos.parametros.marca_max",
                                            "cartas.cartatipos.parametros.marca_list_min",
                                            "cartas.cartatipos.parametros.marca_list_max",
                                            "cartas.cartatipos.parametros.formato_min",
                                            "cartas.cartatipos.parametros.formato_max",
                                            "cartas.cartatipos.parametros.dt_column_file_price_recomended",
                                            "cartas.bebidas.description",
                                            "cartas.bebidas.products.price1",
                                            "cartas.bebidas.products.price2",
                                            "cartas.bebidas.products.description",
                                            "cartas.bebidas.products.formatName",
                                            "cartas.carteleria.promociones.clasification_id",
                                            "carteleria.promociones.clasification_id",
                                            "activaciones.definiciones.background_color",
                                            "activaciones.definiciones.image_background",
                                            "activaciones.definiciones.activaciones.color",
                                            "activaciones.definiciones.activaciones.image_background",
                                            "activaciones.definiciones.activaciones.archive",
                                            "activaciones.definiciones.activaciones.date_from",
                                            "activaciones.definiciones.activaciones.date_to",
                                            "activaciones.definiciones.activaciones.atributos.regex",
                                            "activaciones.definiciones.activaciones.items.description"};

const std::set<std::string> doubles{
    "factor_correction", "price_minimal", "price_maximum_avise", "price", "price1", "price2"};
const std::set<std::string> enumerations{"application_father_id", "application_type_id",
                                         "cartas.cartatipos.id", "cartas.precios.id"};

// Walks every value of a document. Each is handed over in its place, so that it can be changed and put back.
class Walk {
public:
    Walk(JsonData& root, std::function<void(JsonData& value, const std::string& path)> visit)
        : visit_(std::move(visit)) {
        go(root, "");
    }
    static std::string withoutIndexes(const std::string& path) {
        return std::regex_replace(path, std::regex(R"(\[\d+\])"), "");
    }

private:
    void go(JsonData& value, const std::string& path) {
        if (!path.empty())
            visit_(value, path);
        for (std::size_t i = 0; i < value.members.size(); ++i) {
            const auto key = value.members[i].first;
            const bool list = value.kind == JsonData::Kind::list;
            go(value.members[i].second,
               list ? path + "[" + std::to_string(i) + "]" : path + (path.empty() ? "" : ".") + key);
        }
    }

    std::function<void(JsonData&, const std::string&)> visit_;
};

// What a value may not be replaced by.
std::vector<std::string> wrongValues(const JsonData& value, const std::string& path) {
    if (value.kind == JsonData::Kind::object)
        return {"[]", "\"x\"", "1"};
    if (value.kind == JsonData::Kind::list)
        return {"{}", "\"1,2\"", "1", "[null]"};
    const auto plain = Walk::withoutIndexes(path);
    const auto key = plain.substr(plain.rfind('.') + 1);
    if (value.scalar == "true" || value.scalar == "false")
        return {"1", "\"true\"", "[]"};
    if (value.scalar.front() == '"') {
        std::vector<std::string> wrong{"1", "true", "{}"};
        if (key == "path" || key == "archive" || key == "url_font")
            wrong.insert(wrong.end(), {"\"\"", "\"https://a b\""});
        if (key == "date_from" || key == "date_to")
            wrong.insert(wrong.end(), {"\"2024-01-01\"", "\"30-02-2024 00:00:00\""});
        return wrong;
    }
    if (doubles.contains(key))
        return {"\"1\"", "true", "[1]"};
    std::vector<std::string> wrong{"\"1\"", "1.5", "1e3", "true", "9223372036854775808"};
    if (enumerations.contains(key) || enumerations.contains(plain))
        wrong.emplace_back("99");
    return wrong;
}

TEST(CatalogueDocument, DecodesAndEncodesToTheSameDocument) {
    const auto data = document();
    const auto decoded = json::decode<ApplicationInformation>(data.text());
    ASSERT_TRUE(decoded) << decoded.error().text();
    EXPECT_EQ(JsonData::of(json::encode(*decoded).value()).text(true), data.text(true));
    EXPECT_EQ(JsonData::of(json::encodePretty(*decoded).value()).text(), data.text(true))
        << "its keys are sorted";
}

TEST(CatalogueDocument, OneWrongValueAnywhereFailsItAndIsNamed) {
    auto data = document();
    int count = 0;
    Walk(data, [&](JsonData& value, const std::string& path) {
        const JsonData good = value;
        for (const auto& wrong : wrongValues(good, path)) {
            value = JsonData::of(wrong);
            const std::string place = wrong == "[null]" ? path + "[0]: " : path + ": ";
            const auto text = fault(data);
            EXPECT_TRUE(text.starts_with(place)) << wrong << " for " << path << " says \"" << text << "\"";
            ++count;
        }
        value = good;
    });
    EXPECT_GT(count, 1000);
    EXPECT_EQ(fault(data), "");
}

TEST(CatalogueDocument, OnlyTheOptionalMembersMayBeAbsentOrNull) {
    auto data = document();
    std::set<std::string> seen;
    Walk(data, [&](JsonData& value, const std::string& path) {
        const auto plain = Walk::withoutIndexes(path);
        const bool optional = path.back() != ']' && optionalMembers.contains(plain);
        if (optional)
            seen.insert(plain);
        const JsonData good = std::exchange(value, JsonData());
        EXPECT_EQ(fault(data).empty(), optional) << path << " null";
        value = good;
        if (value.kind != JsonData::Kind::object)
            return;
        for (const auto& [key, member] : good.members) {
            std::erase_if(value.members, [&key](const auto& each) { return each.first == key; });
            const bool mayGo = optionalMembers.contains(plain + "." + key);
            EXPECT_EQ(fault(data), mayGo ? "" : path + "." + key + ": missing");
            value = good;
        }
    });
    EXPECT_EQ(seen, optionalMembers) << "the document shows every optional member";
}

TEST(CatalogueDocument, UnknownKeysAreIgnoredEverywhere) {
    auto data = document();
    const auto plain = data.text(true);
    Walk(data, [](JsonData& value, const std::string& path) {
        if (value.kind == JsonData::Kind::object && path.find("zz_unknown") == std::string::npos)
            value.members.emplace(value.members.begin(), "zz_unknown", JsonData::of(R"([{"id": "x"}])"));
    });
    const auto decoded = json::decode<ApplicationInformation>(data.text());
    ASSERT_TRUE(decoded) << decoded.error().text();
    EXPECT_EQ(JsonData::of(json::encode(*decoded).value()).text(true), plain);
}

TEST(CatalogueDocument, MembersWithoutAKeyStayUnset) {
    const auto decoded =
        json::decode<ApplicationInformation>(document()
                                                 .set("productos.0.description", "5")
                                                 .set("cartas.estilos.0.brandId", "\"x\"")
                                                 .set("activaciones.definiciones.0.color", "7")
                                                 .text());
    ASSERT_TRUE(decoded) << decoded.error().text();
    EXPECT_EQ(decoded->products.front().description, std::nullopt);
    EXPECT_EQ(decoded->brochures->styles.front().brandId, std::nullopt);
    EXPECT_EQ(decoded->activations->definitionsList.front().color, std::nullopt);
}

} // namespace
} // namespace kavor
