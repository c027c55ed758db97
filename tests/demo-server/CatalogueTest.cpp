#include "catalogue/Catalogue.h"

#include "drawing/Studio.h"

#include <QImage>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kavor::demo {
namespace {

const Catalogue& catalogue() {
    static const Catalogue made(60, "http://127.0.0.1:1");
    return made;
}

const Json& document() {
    static const Json parsed = Json::parse(catalogue().text());
    return parsed;
}

std::set<int> idsOf(const Json& list) {
    std::set<int> ids;
    for (const Json& record : list) {
        EXPECT_TRUE(ids.insert(record["id"].get<int>()).second) << "twice: " << record.dump();
    }
    return ids;
}

TEST(DemoCatalogue, HoldsEveryRecordThatItRefersTo) {
    const Json& brochures = document()["cartas"];
    const std::set<int> brands = idsOf(document()["productos"]);
    const std::set<int> pairings = idsOf(document()["maridaje"]);
    const std::map<std::string, std::set<int>> ids = [&] {
        std::map<std::string, std::set<int>> found;
        for (const char* list :
             {"product_types", "brand_properties", "brand_typologies", "brand_tastes", "brand_sub_typologies",
              "brand_segments", "brand_ages", "estilos", "pizarra_formato", "blackboard_type", "cartatipos",
              "comanderos", "pennant_brands", "languages", "bebidas", "logos", "brandqrs", "precios"}) {
            found[list] = idsOf(brochures[list]);
        }
        return found;
    }();
    const auto expectIn = [](const std::set<int>& known, const Json& reference, const std::string& what) {
        if (!reference.is_null()) {
            EXPECT_TRUE(known.contains(reference.get<int>())) << what << " " << reference;
        }
    };
    std::set<int> formats;
    for (const Json& brand : document()["productos"]) {
        EXPECT_GE(brand["productlist"].size(), 2u);
        EXPECT_LE(brand["productlist"].size(), 6u);
        const Json& category = brand["category"];
        expectIn(ids.at("brand_properties"), category["property_id"], "property");
        expectIn(ids.at("brand_segments"), category["segment_id"], "segment");
        expectIn(ids.at("brand_typologies"), category["typology_id"], "typology");
        expectIn(ids.at("brand_sub_typologies"), category["sub_typology_id"], "sub typology");
        expectIn(ids.at("brand_tastes"), category["taste_id"], "taste");
        expectIn(ids.at("brand_ages"), category["age_id"], "age");
        for (const Json& pairing : brand["maridaje"]) {
            expectIn(pairings, pairing, "pairing");
        }
        for (const Json& format : brand["productlist"]) {
            EXPECT_TRUE(formats.insert(format["id"].get<int>()).second);
            expectIn(ids.at("product_types"), format["type_id"], "product type");
        }
    }
    for (const Json& style : brochures["estilos"]) {
        expectIn(ids.at("cartatipos"), style["type_id"], "kind of style");
        for (const Json& logo : style["logos"]) {
            expectIn(ids.at("logos"), logo, "logo");
        }
        for (const Json& brand : style["brand_ids"]) {
            expectIn(brands, brand, "preferred brand");
        }
        EXPECT_TRUE(style["logos"].empty() || style["logos"].size() >= 3) << style["name"];
    }
    for (const char* list : {"comanderos", "pennant_brands"}) {
        for (const Json& record : brochures[list]) {
            for (const Json& brand : record["brands"]) {
                expectIn(brands, brand, list);
            }
        }
    }
    for (const Json& language : brochures["languages"]) {
        for (const Json& kind : language["ordertypes"]) {
            expectIn(ids.at("cartatipos"), kind["id"], "language");
        }
    }
    const Json& textile = document()["textil"];
    for (const auto& [key, list] : {std::pair{"type_id", "textil_type"},
                                    {"model_id", "textil_model"},
                                    {"color_id", "textil_color"},
                                    {"size_id", "textil_size"}}) {
        const std::set<int> known = idsOf(textile[list]);
        for (const Json& item : textile["textil"]) {
            expectIn(known, item[key], list);
        }
    }
    idsOf(textile["textil"]);
}

TEST(DemoCatalogue, ShowsEverySwitchOfTheKindsBothWays) {
    std::map<std::string, std::set<std::string>> values;
    std::set<int> kinds, families;
    for (const Json& type : document()["cartas"]["cartatipos"]) {
        kinds.insert(type["id"].get<int>());
        families.insert(type["application_father_id"].get<int>());
        values["permiteIndicarCartas2Precio"].insert(type["permiteIndicarCartas2Precio"].dump());
        const Json parameters = type.value("parametros", Json::object());
        for (const auto& [name, value] : parameters.items()) {
            values[name].insert(value.dump());
        }
    }
    EXPECT_EQ(kinds, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 12, 13, 14, 100, 101}));
    EXPECT_EQ(families.size(), 3u);
    EXPECT_EQ(values.size(), 37u);
    for (const auto& [name, seen] : values) {
        EXPECT_GE(seen.size(), 2u) << name << " never changes";
    }
}

TEST(DemoCatalogue, NamesItsPicturesAlikeAtEveryAddressAndApartForEveryBrand) {
    const Json elsewhere = Json::parse(Catalogue(60, "http://127.0.0.1:2").text());
    std::set<std::string> hashes;
    std::map<int, int> classes;
    for (size_t i = 0; i < document()["productos"].size(); ++i) {
        const std::string hash = document()["productos"][i]["image"]["hash"].get<std::string>();
        EXPECT_EQ(hash, elsewhere["productos"][i]["image"]["hash"]);
        EXPECT_TRUE(hashes.insert(hash).second);
    }
    for (const Json& image : document()["images"]) {
        ++classes[image["download_type"].get<int>()];
    }
    EXPECT_GT(classes[1], 80);
    EXPECT_LT(classes[1], 140);
    EXPECT_GT(classes[2], 100);
    EXPECT_GT(classes[3], 100);
}

TEST(DemoCatalogue, DrawsEveryPictureThatItNames) {
    Studio studio(catalogue());
    std::set<std::string> seen;
    for (const Json& image : document()["images"]) {
        if (!image["path"].get<std::string>().ends_with(".png")) {
            continue;
        }
        const auto picture = catalogue().book().find(image["hash"].get<std::string>());
        ASSERT_TRUE(picture);
        // One of each sort, and all the brands' badges: these must not look alike.
        if (picture->kind != PictureKind::emblem &&
            !seen.insert("sort " + std::to_string(int(picture->kind))).second) {
            continue;
        }
        const auto png = studio.png(image["hash"].get<std::string>());
        ASSERT_TRUE(png);
        const QImage drawn = QImage::fromData(*png, "PNG");
        EXPECT_EQ(drawn.size(), studio.sizeOf(*picture).toSize());
        EXPECT_TRUE(seen.insert(png->toStdString()).second) << "drawn twice alike: " << image.dump();
    }
    EXPECT_FALSE(studio.png(std::string(32, '0')));
}

TEST(DemoCatalogue, GrowsWithoutNamingABrandTwice) {
    const Catalogue large(5000, "http://127.0.0.1:1");
    std::set<std::string> names;
    for (const Brand& brand : large.brands()) {
        EXPECT_TRUE(names.insert(brand.sanitised).second) << brand.name;
    }
    EXPECT_EQ(large.product(4321)->at("id"), 4321);
    EXPECT_EQ(large.brands()[59].name, catalogue().brands()[59].name);
}

} // namespace
} // namespace kavor::demo
