#include "documents/PaperPdfs.h"

#include "catalogue/Content.h"
#include "catalogue/Sections.h"
#include "documents/PdfSheet.h"
#include "documents/Report.h"
#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Goods.h"
#include "drawing/Scenes.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <algorithm>

namespace kavor::demo {

namespace {

template <typename Records>
const auto* recordOf(const Records& records, int id) {
    const auto found = std::ranges::find(records, id, [](const auto& record) { return record.id; });
    return found == records.end() ? nullptr : &*found;
}

} // namespace

QByteArray textilePdf(const Json& order, const Catalogue& catalogue) {
    const Json& sent = order["order"];
    const Json customer = order.value("customer", Json::object());
    Report report("Pedido textil", member(customer, "name"), 0);
    report.heading("Texto para estampar");
    QFont font = face(Face::body, 46);
    for (const TextileFont& known : installedFonts()) {
        if (known.id == sent.value("typography_id", 0)) {
            font.setFamilies({known.name});
        }
    }
    report.painter().setPen(colour(report.theme().ink));
    drawFitted(report.painter(), QRectF(Report::margin, report.y(), report.width(), 70), Qt::AlignCenter,
               member(sent, "message"), font);
    report.y() += 86;
    report.heading("Prendas");
    const Json& textile = catalogue.textile();
    int units = 0;
    for (const Json& line : sent["lines"]) {
        for (const Json& item : textile["textil"]) {
            if (item["id"] != line["textil_id"]) {
                continue;
            }
            const Brand* brand = catalogue.brand(item["brand_id"].get<int>());
            const GarmentColour* tone = recordOf(garmentColours(), item["color_id"].get<int>());
            const GarmentType* type = recordOf(garmentTypes(), item["type_id"].get<int>());
            report.need(100);
            drawGarment(report.painter(), QRectF(Report::margin, report.y(), 90, 90), type->id, tone->colour,
                        brand->look);
            report.painter().setPen(colour(report.theme().ink));
            const QString words =
                QString("%1 %2 · %3 · talla %4")
                    .arg(text(type->name), text(brand->name), text(tone->name),
                         member(textile["textil_size"][item["size_id"].get<size_t>() - 1], "code"));
            drawFitted(report.painter(),
                       QRectF(Report::margin + 106, report.y() + 24, report.width() - 220, 40),
                       Qt::AlignLeft | Qt::AlignVCenter, words, face(Face::body, 18));
            drawFitted(report.painter(),
                       QRectF(Report::margin + report.width() - 110, report.y() + 24, 110, 40),
                       Qt::AlignRight | Qt::AlignVCenter, text(line["quantity"].dump()) + " uds.",
                       face(Face::body, 20, true));
            report.y() += 96;
            units += line["quantity"].get<int>();
        }
    }
    report.line("Total", QString("%1 unidades").arg(units));
    report.paragraph(member(sent, "orderComment"));
    return report.finish();
}

QByteArray activationPdf(const Json& order, const Catalogue& catalogue) {
    const Json& event = order["activation"];
    const Json& customer = order["customer"];
    const Activation* activation = recordOf(activations(), event["activation_id"].get<int>());
    Report report(activation ? activation->name : "Activación", member(customer, "name"), 8);
    if (activation) {
        const ActivationGroup* group = recordOf(activationGroups(), activation->groupId);
        drawActivationScene(report.painter(), QRectF(Report::margin, report.y(), report.width(), 300),
                            *activation, 0,
                            brandAt(catalogue.brands(), Family::beer, group->brandPlace).look);
        report.y() += 320;
    }
    report.heading("Cuándo y dónde");
    report.line("Fecha", member(event, "date_event"));
    report.line("Horario", member(event, "time_from") + " - " + member(event, "time_to"));
    report.line(member(customer, "full_address"));
    report.heading("Contacto");
    report.line(member(customer, "contact"), member(customer, "telephone"));
    report.line(member(customer, "email"));
    report.paragraph(member(event, "comment"));
    return report.finish();
}

QByteArray activationSheetPdf(int activationId, const Catalogue& catalogue) {
    const Activation* activation = recordOf(activations(), activationId);
    if (!activation) {
        return {};
    }
    const ActivationGroup* group = recordOf(activationGroups(), activation->groupId);
    const Look& look = brandAt(catalogue.brands(), Family::beer, group->brandPlace).look;
    Report report(activation->name, group->name, 8);
    report.paragraph(activation->description);
    for (int scene = 0; scene < 2; ++scene) {
        drawActivationScene(report.painter(), QRectF(Report::margin, report.y(), report.width(), 300),
                            *activation, scene, look);
        report.y() += 318;
    }
    report.heading("Condiciones");
    report.line("Agencia", activation->agency);
    report.line("Días de antelación", QString::number(activation->noticeDays));
    report.line("Cupo por usuario", QString::number(activation->quota));
    return report.finish();
}

QByteArray priceListPdf(Family family, const Catalogue& catalogue) {
    Report report("Precios recomendados", family == Family::beer ? "Cervezas" : "Bebidas",
                  family == Family::beer ? 0 : 3);
    int shown = 0;
    for (const Brand& brand : catalogue.brands()) {
        if (brand.family != family || ++shown > 60) {
            continue;
        }
        report.need(60 + 26.0 * double(brand.formats.size()));
        drawMark(report.painter(), QRectF(Report::margin, report.y() - 2, 32, 32), brand.look);
        report.painter().setPen(colour(report.theme().ink));
        drawFitted(report.painter(), QRectF(Report::margin + 42, report.y(), 400, 30),
                   Qt::AlignLeft | Qt::AlignVCenter, text(brand.name + "  ·  " + brand.style),
                   face(Face::round, 19, true));
        report.y() += 34;
        for (const Format& format : brand.formats) {
            report.line("        " + text(format.icon),
                        format.price ? euros(*format.price) : QStringLiteral("a consultar"));
        }
        report.y() += 8;
    }
    return report.finish();
}

} // namespace kavor::demo
