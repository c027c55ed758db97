#include "catalogue/Catalogue.h"

#include "drawing/Studio.h"

#include <QImage>

#include <gtest/gtest.h>

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
    const Json& textile = document()["textil"];
    const auto expectAllIn = [](const std::set<int>& known, const Json& references, const char* what) {
        for (const Json& reference : references.is_array() ? references : Json::array({references})) {
            if (!reference.is_null()) {
                EXPECT_TRUE(known.contains(reference.get<int>())) << what << " " << reference;
            }
        }
    };
    const auto brands = idsOf(document()["productos"]);
    std::set<int> formats;
    for (const Json& brand : document()["productos"]) {
        for (const auto& [key, list] : {std::pair{"property_id", "brand_properties"},
                                        {"segment_id", "brand_segments"},
                                        {"typology_id", "brand_typologies"},
                                        {"sub_typology_id", "brand_sub_typologies"},
                                        {"taste_id", "brand_tastes"},
                                        {"age_id", "brand_ages"}}) {
            expectAllIn(idsOf(brochures[list]), brand["category"][key], key);
        }
        expectAllIn(idsOf(document()["maridaje"]), brand["maridaje"], "pairing");
        for (const Json& format : brand["productlist"]) {
            EXPECT_TRUE(formats.insert(format["id"].get<int>()).second);
            expectAllIn(idsOf(brochures["product_types"]), format["type_id"], "product type");
        }
    }
    for (const Json& style : brochures["estilos"]) {
        expectAllIn(idsOf(brochures["cartatipos"]), style["type_id"], "kind of style");
        expectAllIn(idsOf(brochures["logos"]), style["logos"], "logo");
        expectAllIn(brands, style["brand_ids"], "preferred brand");
        EXPECT_TRUE(style["logos"].empty() || style["logos"].size() >= 3) << style["name"];
    }
    for (const char* list : {"comanderos", "pennant_brands"}) {
        for (const Json& record : brochures[list]) {
            expectAllIn(brands, record["brands"], list);
        }
    }
    for (const Json& item : textile["textil"]) {
        for (const char* part : {"type", "model", "color", "size"}) {
            const std::string name(part);
            expectAllIn(idsOf(textile["textil_" + name]), item[name + "_id"], part);
        }
    }
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

} // namespace
} // namespace kavor::demo
