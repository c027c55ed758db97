#include "documents/MenuPdf.h"

#include "catalogue/Dice.h"
#include "documents/MenuPaper.h"
#include "documents/PdfSheet.h"
#include "documents/PromotionPdf.h"
#include "drawing/Covers.h"
#include "drawing/QrCode.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace kavor::demo {

namespace {

/// The title of a menu in the languages of the catalogue, in the order of their ids.
const char* titleIn(int kind, int language) {
    static const std::map<Family, std::vector<const char*>> titles = {
        {Family::beer,
         {"Carta de Cervezas", "Carta de Cerveses", "Beer Menu", "Carta de Cervexas", "Garagardo Karta",
          "Carte des Bières", "Bierkarte"}},
        {Family::wine,
         {"Carta de Vinos", "Carta de Vins", "Wine List", "Carta de Viños", "Ardo Karta", "Carte des Vins",
          "Weinkarte"}},
        {Family::market,
         {"Carta de Bebidas", "Carta de Begudes", "Drinks Menu", "Carta de Bebidas", "Edari Karta",
          "Carte des Boissons", "Getränkekarte"}},
    };
    const auto& words = titles.at(familyOfKind(kind));
    if (kind == int(BrochureKind::menu) && language <= 1) {
        return "Carta de Menú";
    }
    if (kind == int(BrochureKind::pennant) && language <= 1) {
        return "Banderines";
    }
    return words[size_t(std::clamp(language, 1, int(words.size())) - 1)];
}

class MenuWriter {
public:
    MenuWriter(const Json& order, const Catalogue& catalogue, const std::string& publicAddress)
        : order_(order)
        , menu_(order["menu"])
        , customer_(menu_["customer"])
        , catalogue_(catalogue)
        , address_(publicAddress)
        , paper_(order, catalogue)
        , theme_(paper_.theme())
        , kind_(paper_.kind())
        , sheet_(text(titleIn(int(kind_), 1)) + " - " + text(customer_["name"].get<std::string>()),
                 paper_.style() && isLandscape(*paper_.style())) {}

    QByteArray write() {
        const CoverText words = coverText();
        drawCoverFront(sheet_.painter(), sheet_.page(), kind_, theme_, words);
        drawContent();
        sheet_.newPage();
        drawCoverBack(sheet_.painter(), sheet_.page(), kind_, theme_, words);
        drawBackQr();
        return sheet_.finish();
    }

private:
    static constexpr double margin = 52, bodyTop = 104;
    static constexpr double leastColumn = 228; ///< beside the prices

    QPainter& painter() { return sheet_.painter(); }
    QRectF page() const { return sheet_.page(); }

    std::string customerText(const char* key) const { return customer_.value(key, ""); }

    CoverText coverText() const {
        CoverText words;
        words.title = titleIn(int(kind_), menu_["language1_id"].get<int>());
        if (menu_.contains("language2_id")) {
            words.title += std::string("\n") + titleIn(int(kind_), menu_["language2_id"].get<int>());
        }
        words.bar = customerText("name");
        words.tagline = customerText("placeLocality").empty() ? "Fría, bien tirada y en buena compañía"
                                                              : customerText("placeLocality");
        for (const Json& attribute : menu_.value("menu_style_attributes", Json::array())) {
            if (attribute.contains("value") && !attribute["value"].get<std::string>().empty()) {
                words.tagline = attribute["value"].get<std::string>();
            }
        }
        for (const Json& logo : menu_.value("bottles", Json::array())) {
            if (const Brand* brand = catalogue_.brand(logo["id"].get<int>() - logoIdOf(0))) {
                words.logos.push_back(&brand->look);
            }
        }
        words.barLogo = pictureOf(customerText("image_logo"));
        for (const char* key : {"free_text_1", "free_text_2", "free_text_3", "local_phone", "url",
                                "instagram", "twitter", "facebook"}) {
            if (!customerText(key).empty()) {
                const std::string label = std::string(key) == "local_phone" ? "Tel. " : "";
                words.backLines.push_back(label + customerText(key));
            }
        }
        return words;
    }

    /// The content on pages of its own, as large as they allow.
    void drawContent() {
        std::vector<Group> groups = brandGroups(paper_);
        for (const auto part : {drinkGroups, promotionGroups, pennantGroups}) {
            std::ranges::move(part(paper_), std::back_inserter(groups));
        }
        const QRectF body = page().adjusted(margin, bodyTop, -margin, -70);
        const Flow flow = flowOf(groups, body.size(), leastColumn + 0.75 * paper_.pricesWidth());
        for (int number = 0; number < int(flow.ends.size()); ++number) {
            startPage();
            painter().save();
            painter().translate(body.topLeft());
            painter().scale(flow.scale, flow.scale);
            for (const Flow::Place& place : flow.places) {
                if (place.page == number) {
                    drawPlace(place);
                }
            }
            painter().restore();
        }
        drawShelf(body.adjusted(0, flow.ends.back() * flow.scale, 0, 0));
    }

    void drawPlace(const Flow::Place& place) {
        if (place.block) {
            return place.block->draw(painter(), place.area);
        }
        const QRectF words = place.area.adjusted(0, 0, 0, -10);
        painter().setPen(colour(theme_.ink));
        drawFitted(painter(), words, Qt::AlignLeft | Qt::AlignVCenter, place.group->heading,
                   theme_.script ? face(Face::script, 27) : face(Face::title, 22, true));
        painter().setPen(QPen(colour(theme_.accent), 2));
        painter().drawLine(words.bottomLeft() + QPointF(0, 2), words.bottomRight() + QPointF(0, 2));
    }

    /// What the menu sells stands in a row where its last page would be bare.
    void drawShelf(const QRectF& rest) {
        constexpr double leastHeight = 120, greatestHeight = 250;
        if (rest.height() < leastHeight) {
            return;
        }
        std::vector<ShownBrand> shown;
        for (const Json& item : menu_["items"]) {
            if (ShownBrand brand = shownBrand(item, catalogue_); !brand.vessels.empty() && shown.size() < 8) {
                shown.push_back(std::move(brand));
            }
        }
        const double height = std::min(rest.height() - 16, greatestHeight), width = height * 0.44;
        painter().setPen(QPen(colour(theme_.accent), 3));
        painter().drawLine(QPointF(rest.left(), rest.bottom()), QPointF(rest.right(), rest.bottom()));
        const double step = std::min(rest.width() / double(std::max<size_t>(1, shown.size())), width * 1.8);
        double x = rest.center().x() - step * double(shown.size()) / 2;
        for (const ShownBrand& brand : shown) {
            drawVessel(painter(), QRectF(x + (step - width) / 2, rest.bottom() - height, width, height - 1),
                       brand.look, shownVessel(brand.vessels));
            x += step;
        }
    }

    void startPage() {
        sheet_.newPage();
        drawPaper(painter(), page(), theme_, false);
        painter().setPen(Qt::NoPen);
        painter().setBrush(colour(theme_.ink));
        painter().drawRect(QRectF(0, 0, page().width(), 74));
        painter().setBrush(colour(theme_.accent));
        painter().drawRect(QRectF(0, 74, page().width(), 6));
        painter().setPen(colour(theme_.paper));
        drawFitted(painter(), QRectF(margin, 14, page().width() * 0.55 - margin, 48),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   text(titleIn(int(kind_), menu_["language1_id"].get<int>())),
                   theme_.script ? face(Face::script, 38) : face(Face::title, 30, true));
        drawFitted(painter(), QRectF(page().width() * 0.58, 16, page().width() * 0.42 - margin, 46),
                   Qt::AlignRight | Qt::AlignVCenter, text(customerText("name")), face(Face::body, 20));
        painter().setPen(paper_.softInk());
        drawFitted(painter(), QRectF(margin, page().bottom() - 46, page().width() - 2 * margin, 22),
                   Qt::AlignCenter,
                   paper_.withoutPrices() ? QStringLiteral("Consulta nuestros precios en la barra")
                                          : QStringLiteral("Precios en euros, IVA incluido"),
                   face(Face::body, 15));
    }

    void drawBackQr() {
        const bool asked = menu_.contains("brand_qr_id") || order_.value("with_digital_menu_print", false);
        if (!asked || !order_.value("with_digital_menu", false)) {
            return;
        }
        const double band = page().height() * 0.16, side = band * 0.74;
        const QRectF square(page().right() - margin - side, page().bottom() - band / 2 - side / 2, side,
                            side);
        painter().setPen(QPen(colour(theme_.accent), 4));
        painter().setBrush(Qt::white);
        painter().drawRoundedRect(square.adjusted(-6, -6, 6, 6), 10, 10);
        drawQrCode(painter(), square, address_, colour(theme_.dark ? theme_.paper : theme_.ink));
        painter().setPen(colour(theme_.paper));
        drawFitted(painter(), QRectF(margin, square.top(), page().width() - 2 * margin - side - 20, 24),
                   Qt::AlignRight | Qt::AlignVCenter, "Lee la carta en tu móvil", face(Face::body, 18));
    }

    const Json& order_;
    const Json& menu_;
    const Json& customer_;
    const Catalogue& catalogue_;
    std::string address_;
    MenuPaper paper_;
    const Theme& theme_;
    BrochureKind kind_;
    PdfSheet sheet_;
};

} // namespace

ShownBrand shownBrand(const Json& item, const Catalogue& catalogue) {
    ShownBrand shown;
    if (const Brand* brand = catalogue.brand(item["brand"].get<int>())) {
        shown.name = brand->name;
        shown.style = brand->style;
        shown.look = brand->look;
        for (const Json& sold : item["sub_items"]) {
            if (const Format* format = catalogue.format(sold["product"].get<int>())) {
                shown.vessels.push_back(format->vessel);
            }
        }
        return shown;
    }
    // A brand of the user's own borrows colours from a known one.
    shown.name = item.value("name", "");
    shown.look =
        catalogue.brands()[size_t(markOf(shown.name) % std::min<size_t>(catalogue.brands().size(), 36))].look;
    shown.look.name = shown.name;
    shown.vessels.push_back(Vessel::bottle);
    return shown;
}

Vessel shownVessel(const std::vector<Vessel>& vessels) {
    for (const Vessel wanted : {Vessel::bottle, Vessel::wineBottle, Vessel::softBottle, Vessel::largeBottle,
                                Vessel::magnum, Vessel::smallBottle, Vessel::pint, Vessel::tallGlass}) {
        if (std::ranges::find(vessels, wanted) != vessels.end()) {
            return wanted;
        }
    }
    return vessels.front();
}

std::string soldFormatName(const Json& sold, const Catalogue& catalogue) {
    const Format* format = catalogue.format(sold["product"].get<int>());
    std::string name = format ? format->icon : "Formato propio";
    if (sold.contains("quantity")) {
        const size_t digit = name.find_first_of("0123456789");
        name = (digit == std::string::npos ? name + " " : name.substr(0, digit)) + sold["quantity"].dump() +
               " cl";
    }
    return name;
}

QByteArray menuPdf(const Json& order, const Catalogue& catalogue, const std::string& publicAddress) {
    return MenuWriter(order, catalogue, publicAddress).write();
}

} // namespace kavor::demo
