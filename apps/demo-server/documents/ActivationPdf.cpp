#include "documents/ActivationPdf.h"

#include "documents/Page.h"
#include "documents/Report.h"
#include "drawing/Scenes.h"
#include "drawing/Tools.h"

#include <QDate>
#include <QLocale>

#include <algorithm>

namespace kavor::demo {

namespace {

const Look& lookOf(const Activation& activation, const Catalogue& catalogue) {
    return brandAt(catalogue.brands(), Family::beer, groupOf(activation).brandPlace).look;
}

QDate dayOf(const Json& event) {
    return QDate::fromString(member(event, "date_event"), "dd-MM-yyyy");
}

QString spanish(QDate day, const char* form) {
    return QLocale(QLocale::Spanish, QLocale::Spain).toString(day, form);
}

QString hoursOf(const Json& event) {
    return "De " + member(event, "time_from") + " a " + member(event, "time_to");
}

/// The names of the elements of the order, in the catalogue's order.
std::vector<ActivationElement> orderedElements(const Json& event, const Activation& activation) {
    std::vector<ActivationElement> ordered = elementsOf(activation);
    const Json items = event.value("items", Json::array());
    std::erase_if(ordered, [&](const ActivationElement& element) {
        return std::ranges::none_of(items, [&](const Json& item) { return item["id"] == element.id; });
    });
    return ordered;
}

/// What was answered, by the question's name.
std::vector<std::pair<std::string, std::string>> answersOf(const Json& event, const Activation& activation) {
    std::vector<std::pair<std::string, std::string>> answers;
    for (const Json& attribute : event.value("attributes", Json::array())) {
        for (const ActivationQuestion& question : questionsOf(activation)) {
            if (attribute["id"] == question.id) {
                answers.emplace_back(question.name, attribute["value"].get<std::string>());
            }
        }
    }
    return answers;
}

std::string tieWords(const Order& order, Orders& orders) {
    const Json& event = order.body["activation"];
    std::string words;
    if (event.contains("activation_relation_id")) {
        words = "Asociada al pedido " + event["activation_relation_id"].dump();
    }
    if (const auto later = tiedTo(orders, order)) {
        words += (words.empty() ? "" : " · ") + std::string("Tiene asociado el pedido ") +
                 std::to_string(later->id);
    }
    return words;
}

/// A small month with the day of the party.
class SmallMonth {
public:
    SmallMonth(QPainter& painter, const QRectF& area, QDate day)
        : painter_(painter)
        , area_(area)
        , day_(day) {}

    void draw(const Theme& theme) {
        painter_.setPen(QPen(colour(theme.accent), 1.5));
        painter_.setBrush(QColor(255, 255, 255, 190));
        painter_.drawRoundedRect(area_, 12, 12);
        painter_.setPen(colour(theme.ink));
        drawFitted(painter_, QRectF(area_.left(), area_.top() + 8, area_.width(), 24), Qt::AlignCenter,
                   spanish(day_, "MMMM yyyy"), face(Face::round, 18, true));
        const QDate first(day_.year(), day_.month(), 1);
        for (QDate day = first; day.month() == first.month(); day = day.addDays(1)) {
            drawDay(day, first, theme);
        }
    }

private:
    void drawDay(QDate day, QDate first, const Theme& theme) {
        const double side = (area_.width() - 20) / 7, height = (area_.height() - 44) / 6;
        const int cell = day.day() - 1 + first.dayOfWeek() - 1;
        const int week = cell / 7;
        const QRectF box(area_.left() + 10 + cell % 7 * side, area_.top() + 38 + week * height, side, height);
        const bool chosen = day == day_;
        if (chosen) {
            const double radius = std::min(side, height) / 2;
            painter_.setPen(Qt::NoPen);
            painter_.setBrush(colour(theme.accent));
            painter_.drawEllipse(box.center(), radius, radius);
        }
        painter_.setPen(chosen ? inkOn(colour(theme.accent)) : colour(theme.ink));
        drawFitted(painter_, box, Qt::AlignCenter, QString::number(day.day()), face(Face::body, 14, chosen));
    }

    QPainter& painter_;
    QRectF area_;
    QDate day_;
};

/// The party in a picture, its month beside it.
void writeBand(Report& report, const Json& event, const Activation* activation, const Catalogue& catalogue) {
    constexpr double height = 176;
    const double half = report.width() / 2;
    if (activation) {
        drawActivationScene(report.painter(), QRectF(Report::margin, report.y(), half, height), *activation,
                            0, lookOf(*activation, catalogue));
    }
    if (const QDate day = dayOf(event); day.isValid()) {
        const QRectF month(Report::margin + half + 20, report.y(), half - 20, height);
        SmallMonth(report.painter(), month, day).draw(report.theme());
    }
    report.y() += height + 14;
}

void writeWhen(Report& report, const Json& event, const Json& customer) {
    report.heading("Cuándo y dónde");
    const auto row = [&](const QString& words, double size, bool bold) {
        report.painter().setPen(colour(report.theme().ink));
        drawFitted(report.painter(), QRectF(Report::margin + 6, report.y(), report.width() - 6, size * 1.5),
                   Qt::AlignLeft | Qt::AlignVCenter, words, face(Face::body, size, bold));
        report.y() += size * 1.5;
    };
    const QDate day = dayOf(event);
    const QString when =
        day.isValid() ? spanish(day, "dddd d 'de' MMMM 'de' yyyy") : member(event, "date_event");
    row(when + ". " + hoursOf(event), 22, true);
    row(member(customer, "name"), 19, true);
    row(member(customer, "full_address"), 17, false);
    const QString town = member(customer, "placePostalCode") + " " + member(customer, "placeLocality");
    if (!town.trimmed().isEmpty()) {
        row(town, 17, false);
    }
    report.y() += 8;
}

void writeElements(Report& report, const std::vector<ActivationElement>& elements,
                   const Activation& activation, const Look& look) {
    if (elements.empty()) {
        return;
    }
    report.need(200);
    report.heading("Elementos");
    constexpr double gap = 14;
    const double width = (report.width() - 3 * gap) / 4, height = width * 0.6;
    for (size_t i = 0; i < elements.size(); ++i) {
        const double x = Report::margin + double(i) * (width + gap);
        drawActivationElement(report.painter(), QRectF(x, report.y() + 4, width, height), activation,
                              elements[i].number, look);
        report.painter().setPen(colour(report.theme().ink));
        drawFitted(report.painter(), QRectF(x, report.y() + height + 8, width, 24), Qt::AlignCenter,
                   elements[i].name, face(Face::body, 15, true));
    }
    report.y() += height + 44;
}

void writeQuota(Report& report, int made, int quota) {
    report.heading("Cupo");
    const QRectF bar(Report::margin + 6, report.y() + 4, report.width() - 190, 20);
    report.painter().setPen(Qt::NoPen);
    report.painter().setBrush(mixed(colour(report.theme().accent), Qt::white, 0.75));
    report.painter().drawRoundedRect(bar, 10, 10);
    QRectF full = bar;
    full.setWidth(bar.width() * std::min(1.0, double(made) / std::max(1, quota)));
    report.painter().setBrush(colour(report.theme().accent));
    report.painter().drawRoundedRect(full, 10, 10);
    report.painter().setPen(colour(report.theme().ink));
    drawFitted(report.painter(), QRectF(bar.right() + 12, bar.top() - 4, 170, 28),
               Qt::AlignLeft | Qt::AlignVCenter, QString("%1 de %2 realizadas").arg(made).arg(quota),
               face(Face::body, 16, true));
    report.y() += 40;
}

void writeContact(Report& report, const Json& event, const Json& customer, const Activation* activation) {
    report.heading("Contacto y datos");
    std::vector<std::pair<QString, QString>> cells = {
        {"Contacto", member(customer, "contact")},
        {"Teléfono", member(customer, "telephone")},
        {"Email", member(customer, "email")},
        {"Código cliente", customer.contains("cod_tevo") ? text(customer["cod_tevo"].dump()) : QString()},
        {"Azafata o azafato", member(event, "favorite_steward")}};
    if (activation) {
        cells.emplace_back("Agencia", activation->agency);
        for (const auto& [name, value] : answersOf(event, *activation)) {
            cells.emplace_back(text(name), text(value));
        }
    }
    std::erase_if(cells, [](const auto& cell) { return cell.second.isEmpty(); });
    constexpr size_t columns = 3;
    constexpr double height = 46;
    const double width = report.width() / columns;
    for (size_t i = 0; i < cells.size(); ++i) {
        if (i % columns == 0) {
            report.need(height);
        }
        const QRectF box(Report::margin + 6 + double(i % columns) * width, report.y(), width - 14, 20);
        report.painter().setPen(mixed(colour(report.theme().ink), colour(report.theme().paper), 0.35));
        drawFitted(report.painter(), box, Qt::AlignLeft | Qt::AlignVCenter, cells[i].first,
                   face(Face::body, 14));
        report.painter().setPen(colour(report.theme().ink));
        drawFitted(report.painter(), box.translated(0, 19), Qt::AlignLeft | Qt::AlignVCenter, cells[i].second,
                   face(Face::body, 17, true));
        if (i % columns == columns - 1 || i + 1 == cells.size()) {
            report.y() += height;
        }
    }
    for (const char* key : {"local_information", "comment"}) {
        if (const QString words = member(event, key); !words.isEmpty()) {
            report.paragraph(words);
        }
    }
    report.y() += 6;
}

std::string tableRow(const std::string& name, const std::string& value) {
    return value.empty() ? value
                         : "<tr><td>" + escaped(name) + "</td><td style=\"text-align:right\">" +
                               escaped(value) + "</td></tr>";
}

} // namespace

int activationsMade(Orders& orders, std::int64_t account, const Activation& activation) {
    int made = activation.made; // those of the account's earlier days among them
    for (const Order& order : orders.list(account, "activation")) {
        made += !order.seeded && order.body["activation"]["activation_id"] == activation.id;
    }
    return made;
}

std::optional<Order> tiedTo(Orders& orders, const Order& order) {
    for (const Order& other : orders.list(order.account, "activation")) {
        if (other.body["activation"].value("activation_relation_id", std::int64_t(0)) == order.id) {
            return other;
        }
    }
    return std::nullopt;
}

QByteArray activationPdf(const Order& order, Orders& orders, const Catalogue& catalogue) {
    const Json& event = order.body["activation"];
    const Json& customer = order.body["customer"];
    const Activation* activation = activationOf(event["activation_id"].get<int>());
    Report report(activation ? activation->name : "Activación",
                  activation ? text(groupOf(*activation).name) : member(customer, "name"), 8);
    writeBand(report, event, activation, catalogue);
    writeWhen(report, event, customer);
    if (const std::string tie = tieWords(order, orders); !tie.empty()) {
        report.heading("Activaciones del mismo día");
        report.line(text(tie));
        report.y() += 8;
    }
    if (activation) {
        writeElements(report, orderedElements(event, *activation), *activation,
                      lookOf(*activation, catalogue));
    }
    writeContact(report, event, customer, activation);
    if (activation) {
        report.need(84);
        writeQuota(report, activationsMade(orders, order.account, *activation), activation->quota);
    }
    return report.finish();
}

std::string activationHtml(const Order& order, Orders& orders) {
    const Json& event = order.body["activation"];
    const Json& customer = order.body["customer"];
    const Activation* activation = activationOf(event["activation_id"].get<int>());
    const QDate day = dayOf(event);
    std::string rows = tableRow("Activación", activation ? activation->name : "Retirada");
    rows += tableRow("Día", spanish(day, "dddd d 'de' MMMM 'de' yyyy").toStdString());
    rows += tableRow("Horas", hoursOf(event).toStdString());
    rows += tableRow("Dirección", member(customer, "full_address").toStdString());
    if (activation) {
        std::string names;
        for (const ActivationElement& element : orderedElements(event, *activation)) {
            names += (names.empty() ? "" : ", ") + std::string(element.name);
        }
        rows += tableRow("Agencia", activation->agency) + tableRow("Elementos", names);
        for (const auto& [name, value] : answersOf(event, *activation)) {
            rows += tableRow(name, value);
        }
        const int made = activationsMade(orders, order.account, *activation);
        rows += tableRow("Cupo", std::to_string(made) + " de " + std::to_string(activation->quota));
    }
    return rows + tableRow("Asociación", tieWords(order, orders));
}

QByteArray activationSheetPdf(int activationId, const Catalogue& catalogue) {
    const Activation* activation = activationOf(activationId);
    if (!activation) {
        return {};
    }
    const Look& look = lookOf(*activation, catalogue);
    Report report(activation->name, groupOf(*activation).name, 8);
    report.paragraph(activation->description);
    for (int scene = 0; scene < 2; ++scene) {
        drawActivationScene(report.painter(), QRectF(Report::margin, report.y(), report.width(), 300),
                            *activation, scene, look);
        report.y() += 318;
    }
    writeElements(report, elementsOf(*activation), *activation, look);
    report.heading("Condiciones");
    report.line("Agencia", activation->agency);
    report.line("Días de antelación", QString::number(activation->noticeDays));
    report.line("Cupo por usuario", QString::number(activation->quota));
    return report.finish();
}

} // namespace kavor::demo
