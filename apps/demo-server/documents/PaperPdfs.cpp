#include "documents/PaperPdfs.h"

#include "catalogue/Content.h"
#include "catalogue/Sections.h"
#include "documents/PdfSheet.h"
#include "documents/Report.h"
#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Goods.h"
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

QByteArray sellingSheetPdf(const Json& order, const Catalogue& catalogue) {
    const SheetStyle* style = recordOf(sheetStyles(), order["style_id"].get<int>());
    Report report(member(order, "title"), member(order, "sub_title"), style ? style->theme : 0);
    report.line(
        QString("Oferta válida del %1 al %2").arg(member(order, "date_from"), member(order, "date_to")),
        order["taxes_included"].get<bool>() ? "IVA incluido" : "IVA no incluido");
    report.y() += 8;
    for (const Json& module : order["items"]) {
        const Format* first = catalogue.format(module["product1_id"].get<int>());
        const Brand* brand = catalogue.brandOfFormat(module["product1_id"].get<int>());
        if (!first || !brand) {
            continue;
        }
        report.need(190);
        const QRectF box(Report::margin, report.y(), report.width(), 170);
        report.painter().setPen(QPen(colour(report.theme().accent), 2));
        report.painter().setBrush(mixed(colour(report.theme().paper), Qt::white, 0.6));
        report.painter().drawRoundedRect(box, 14, 14);
        drawBox(report.painter(), QRectF(box.left() + 12, box.top() + 8, 150, 150), brand->look,
                first->bottlesPerBox.value_or(24));
        report.painter().setPen(colour(report.theme().ink));
        drawFitted(report.painter(), QRectF(box.left() + 180, box.top() + 16, 300, 36),
                   Qt::AlignLeft | Qt::AlignVCenter, text(brand->name), face(Face::round, 28, true));
        drawFitted(report.painter(), QRectF(box.left() + 180, box.top() + 56, 300, 24),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   QString("%1 cajas · %2").arg(module["product1_box"].get<int>()).arg(text(first->icon)),
                   face(Face::body, 19));
        if (const Brand* other = catalogue.brandOfFormat(module.value("product2_id", 0))) {
            const Format* second = catalogue.format(module["product2_id"].get<int>());
            drawFitted(report.painter(), QRectF(box.left() + 180, box.top() + 84, 300, 24),
                       Qt::AlignLeft | Qt::AlignVCenter,
                       QString("+ %1 cajas · %2 %3")
                           .arg(module.value("product2_box", 0))
                           .arg(text(other->name), second ? text(second->icon) : QString()),
                       face(Face::body, 19));
        }
        drawFitted(report.painter(), QRectF(box.left() + 180, box.top() + 122, 300, 24),
                   Qt::AlignLeft | Qt::AlignVCenter, member(module, "code_promotion"), face(Face::body, 16));
        report.painter().setPen(Qt::NoPen);
        report.painter().setBrush(colour(report.theme().accent));
        const QRectF price(box.right() - 156, box.top() + 52, 140, 66);
        report.painter().drawRoundedRect(price, 33, 33);
        report.painter().setPen(inkOn(colour(report.theme().accent)));
        drawFitted(report.painter(), price.adjusted(8, 0, -8, 0), Qt::AlignCenter,
                   euros(module["price"].get<double>()), face(Face::round, 28, true));
        report.y() += 184;
    }
    report.paragraph(member(order, "free_text"));
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
