#include "catalogue/Posters.h"

#include "catalogue/Catalogue.h"
#include "catalogue/Content.h"
#include "catalogue/Sections.h"

#include <algorithm>

namespace kavor::demo {

namespace {

using enum AttributeKind;

constexpr int es = 1, ca = 2, en = 3;

// clang-format off
const std::vector<Poster> table = {
    {1, 1, 1, Family::beer, 0, 0, 0, true, {words, price}, {1, 2, 4, 5},
     {{es, "Jueves de quintos", "Cubo de cinco quintos a precio de cuatro"},
      {en, "Bucket Thursday", "Five small bottles for the price of four"}}},
    {2, 1, 1, Family::beer, 1, 6, 1, true, {list}, {1, 3, 4, 5},
     {{es, "La hora tostada", "De ocho a nueve, tapa con cada tostada"},
      {ca, "L'hora torrada", "De vuit a nou, tapa amb cada torrada"}}},
    {3, 1, 2, Family::beer, 2, 2, 2, true, {words, price}, {2, 3, 4},
     {{es, "Caña y bravas", "Caña y ración de bravas"},
      {en, "Beer and bravas", "A small draught and our spicy potatoes"}}},
    {4, 1, 2, Family::beer, 3, 4, 0, false, {logo}, {1},
     {{es, "Barril recién pinchado", "Hoy se estrena barril"}}},
    {5, 1, 3, Family::beer, 4, 4, 3, true, {words, logo, price, list, hour}, {1, 2, 3, 4, 5},
     {{es, "Noche de partido", "Pinta y bocadillo mientras dure el partido"},
      {en, "Match night", "A pint and a sandwich until the final whistle"},
      {ca, "Nit de partit", "Pinta i entrepà mentre duri el partit"}}},
    {6, 1, 3, Family::beer, 5, 8, 4, true, {words, hour}, {1, 3, 5},
     {{es, "Verbena del barrio", "Música, farolillos y cañas frías"},
      {ca, "Revetlla del barri", "Música, fanalets i canyes fresques"}}},
    {7, 1, 4, Family::beer, 6, 5, 2, false, {words, price}, {1, 2, 4},
     {{es, "Arroces del domingo", "Arroz de la casa y una de trigo"},
      {en, "Sunday rice", "Rice of the house and a wheat beer"}}},
    {8, 1, 4, Family::beer, 7, 7, 2, false, {logo, list}, {1, 2, 3},
     {{es, "Temporada de setas", "Setas a la plancha y una negra"},
      {ca, "Temps de bolets", "Bolets a la planxa i una negra"}}},
    {9, 2, 1, Family::beer, 8, 0, 0, true, {words, price}, {1, 2, 5},
     {{es, "Segunda ronda", "La segunda pinta, a mitad de precio"},
      {en, "Second round", "The second pint at half the price"}}},
    {10, 2, 2, Family::beer, 9, 3, 2, true, {}, {2, 4, 5},
     {{es, "Tapa de bienvenida", "Con la primera bebida, tapa de la casa"},
      {en, "Welcome tapa", "A tapa of the house with your first drink"}}},
    {11, 2, 3, Family::beer, 10, 8, 3, true, {words, price, list}, {1, 2, 4, 5},
     {{es, "Tarde de juegos", "Un juego de mesa por mesa y jarra"},
      {ca, "Tarda de jocs", "Un joc de taula per taula i gerra"}}},
    {12, 2, 0, Family::beer, 11, 2, 4, false, {logo, price}, {1, 2, 3},
     {{es, "Menú de peñas", "Para grupos de más de diez"}}},
    {13, 3, 4, Family::wine, 0, 9, 5, true, {words, price}, {1, 2, 4, 5},
     {{es, "Copa y queso", "Una copa y tabla de quesos"},
      {en, "Wine and cheese", "A glass of wine and a cheese board"}}},
    {14, 3, 4, Family::wine, 1, 9, 5, true, {list, hour}, {1, 3, 5},
     {{es, "Vendimia en la barra", "Blancos y tintos por copas"},
      {ca, "Verema a la barra", "Blancs i negres a copes"}}},
    {15, 3, 1, Family::wine, 2, 2, 5, false, {words, price}, {2, 3, 4},
     {{es, "Martes de rosado", "Rosado bien frío y aceitunas"},
      {en, "Rosé Tuesday", "Chilled rosé and a plate of olives"}}},
    {16, 1, 2, Family::market, 0, 3, 8, true, {logo}, {1, 2, 5},
     {{es, "Sin alcohol, con todo", "Refrescos artesanos de la casa"},
      {en, "No alcohol, all flavour", "Craft soft drinks of the house"}}},
    {17, 1, 3, Family::beer, Poster::retired, 7, 6, true, {words}, {1, 2},
     {{es, "Adiós con honores", "Las últimas cajas de una cerveza querida"},
      {en, "A fond farewell", "The last crates of a beer that we loved"}}},
    {18, 1, 2, Family::market, 1, 2, 8, true, {words, price, hour}, {1, 2, 4},
     {{es, "Domingo de vermut", "Vermut, sifón y aceituna rellena"},
      {en, "Vermouth Sunday", "Vermouth, soda and a stuffed olive"}}},
    {19, 1, 4, Family::beer, 12, 3, 2, true, {price, list}, {1, 3, 4},
     {{es, "Brasas y mar", "Sardinas a la brasa y una clara"},
      {ca, "Brases i mar", "Sardines a la brasa i una clara"}}},
    {20, 1, 3, Family::beer, 13, 6, 7, true, {logo, hour}, {1, 2, 5},
     {{es, "Noche de monólogos", "Un micrófono, seis cómicos y la barra abierta"},
      {en, "Stand-up night", "One microphone, six comedians and an open bar"}}},
    {21, 2, 5, Family::beer, 1, 1, 1, true, {price, hour}, {1, 2, 4, 5},
     {{es, "Cata a ciegas", "Tres cervezas, tres bocados y un pañuelo"},
      {en, "Blind tasting", "Three beers, three bites and a blindfold"}}},
    {22, 1, 4, Family::beer, 3, 7, 8, false, {words, logo}, {1, 3},
     {{es, "Castañada", "Castañas asadas y una tostada junto al fuego"},
      {ca, "Castanyada", "Castanyes torrades i una torrada vora el foc"}}},
    {23, 2, 1, Family::beer, 7, 8, 0, true, {price, hour}, {1, 2, 3, 4, 5},
     {{es, "La hora feliz", "Dos cañas y una tapa a la salida del trabajo"},
      {en, "Happy hour", "Two draughts and a tapa after work"}}},
    {24, 1, 2, Family::market, 2, 5, 2, false, {words, price, list}, {2, 4, 5},
     {{es, "Almuerzo de barrio", "Zumo recién exprimido y tostada con tomate"},
      {en, "Neighbourhood brunch", "Fresh juice and toast with tomato"}}},
    {25, 3, 5, Family::wine, 3, 1, 5, true, {words, price}, {1, 2, 4},
     {{es, "Tres vinos, tres historias", "Cata guiada con quien hizo la vendimia"},
      {en, "Three wines, three stories", "Tasting with the people of the harvest"}}},
    {26, 2, 3, Family::beer, 5, 0, 4, true, {words, logo, list}, {2, 3, 5},
     {{es, "Cumpleaños en la barra", "Quien cumple no paga la primera"},
      {en, "Birthday at the bar", "Your first one is on us"}}},
    {27, 1, 5, Family::wine, 0, 6, 5, false, {logo, price}, {1, 2, 3},
     {{es, "Brindis de otoño", "Un tinto de crianza y setas confitadas"},
      {ca, "Brindis de tardor", "Un negre de criança i bolets confitats"}}},
};
// clang-format on

const char* typeName(int type) {
    constexpr std::array names = {"", "Cartelería", "Promoción", "Cartelería de vino"};
    return names[size_t(type)];
}

Json classifications() {
    Json list = Json::array();
    for (const char* name :
         {"Entre semana", "Con tapa", "Fiestas y partidos", "De temporada", "Catas y maridajes"}) {
        const int id = int(list.size()) + 1;
        list.push_back({{"id", id}, {"position", id}, {"name", name}});
    }
    return list;
}

Json languageRecords(const Poster& poster, const Look& look, PictureBook& book) {
    Json list = Json::array();
    for (const PosterText& words : poster.texts) {
        const auto language = std::ranges::find(languages(), words.language, &Language::id);
        const std::string drawn = "any proportions " + lookText(look) + words.title + words.description;
        list.push_back({{"id", words.language},
                        {"name", language->name},
                        {"default", &words == &poster.texts.front()},
                        {"image", book.resource({PictureKind::poster, poster.id, words.language}, drawn,
                                                words.language == es ? 2 : 3)}});
    }
    return list;
}

Json supportRecords(const Poster& poster) {
    Json list = Json::array();
    for (const int id : poster.supports) {
        list.push_back({{"id", poster.supportId(id)},
                        {"type_id", id},
                        {"type_name", supports()[size_t(id) - 1].name},
                        {"position", id}});
    }
    return list;
}

Json attributeRecords(const Poster& poster) {
    Json list = Json::array();
    for (const PosterAttribute& attribute : poster.attributes()) {
        Json values = Json::array();
        for (const char* choice : attribute.choices) {
            const int position = int(values.size()) + 1;
            values.push_back(
                {{"id", attribute.id * 10 + position}, {"value", choice}, {"position", position}});
        }
        list.push_back({{"id", attribute.id},
                        {"name", attribute.name},
                        {"max_length", attribute.maximumLength},
                        {"type_id", int(attribute.kind)},
                        {"values", std::move(values)}});
    }
    return list;
}

Json supportTypes(PictureBook& book) {
    Json list = Json::array();
    for (const Support& support : supports()) {
        const std::string drawn =
            support.name + std::to_string(support.width) + "x" + std::to_string(support.height);
        list.push_back({{"id", support.id},
                        {"position", support.id},
                        {"name", support.name},
                        {"description", support.description},
                        {"icon", book.resource({PictureKind::support, support.id}, drawn, 2)}});
    }
    return list;
}

} // namespace

std::span<const Support> supports() {
    static constexpr std::array sizes = {
        Support{1, "Cartel A3", "Papel de 170 g, interior", 297, 420},
        Support{2, "Cartel A4", "Papel de 170 g, interior", 210, 297},
        Support{3, "Vinilo de escaparate", "50 x 70 cm, despegable", 500, 700},
        Support{4, "Triángulo de mesa", "21 x 10 cm, cartulina plegada", 210, 100},
        Support{5, "Pantalla", "Imagen de 1920 x 1080", 320, 180},
    };
    return sizes;
}

std::span<const Poster> posters() {
    return table;
}

const Poster* posterOf(int id) {
    const auto found = std::ranges::find(posters(), id, &Poster::id);
    return found == posters().end() ? nullptr : &*found;
}

const PosterText& Poster::in(int language) const {
    const auto found = std::ranges::find(texts, language, &PosterText::language);
    return found == texts.end() ? texts.front() : *found;
}

bool Poster::speaks(int language) const {
    return std::ranges::find(texts, language, &PosterText::language) != texts.end();
}

std::vector<PosterAttribute> Poster::attributes() const {
    const int first = 9000 + id * 10;
    const std::array all = {
        PosterAttribute{first + 1, words, "Frase del local", 60, {}},
        PosterAttribute{first + 2, price, "Precio de la promoción", 8, {}},
        PosterAttribute{first + 3, logo, "Logotipo del local", 0, {}},
        PosterAttribute{first + 4, list, "Franja", 20, {"Mediodía", "Tarde", "Noche"}},
        PosterAttribute{first + 5, hour, "Hora de comienzo", 5, {}},
    };
    std::vector<PosterAttribute> asked;
    for (const PosterAttribute& attribute : all) {
        if (std::ranges::find(asks, attribute.kind) != asks.end()) {
            asked.push_back(attribute);
        }
    }
    return asked;
}

int Poster::brandId(std::span<const Brand> brands) const {
    return brandPlace == retired ? retiredBrandId : brandAt(brands, family, brandPlace).id;
}

Look Poster::look(std::span<const Brand> brands) const {
    constexpr int lender = 14; // of the look of a brand that is gone
    Look look = brandAt(brands, family, brandPlace == retired ? lender : brandPlace).look;
    if (brandPlace == retired) {
        look.name = retiredBrandName;
    }
    return look;
}

Json postersSection(std::span<const Brand> brands, PictureBook& book, bool onlineOnly) {
    Json promotions = Json::array();
    for (const Poster& poster : posters()) {
        if (onlineOnly && !poster.online) {
            continue;
        }
        const Look look = poster.look(brands);
        promotions.push_back({{"id", poster.id},
                              {"brand_id", poster.brandId(brands)},
                              {"brand_name", look.name},
                              {"type_id", poster.typeId},
                              {"type_name", typeName(poster.typeId)},
                              {"clasification_id",
                               poster.classificationId > 0 ? Json(poster.classificationId) : Json(nullptr)},
                              {"title", poster.texts.front().title},
                              {"description", poster.texts.front().description},
                              {"position", poster.id},
                              {"show_menu_online", poster.online},
                              {"languages", languageRecords(poster, look, book)},
                              {"supports", supportRecords(poster)},
                              {"attributes", attributeRecords(poster)}});
    }
    return {{"support_types", supportTypes(book)},
            {"clasificaciones", classifications()},
            {"promociones", std::move(promotions)}};
}

} // namespace kavor::demo
