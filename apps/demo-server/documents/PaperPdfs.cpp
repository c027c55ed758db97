#include "documents/PaperPdfs.h"

#include "documents/Report.h"
#include "drawing/Emblems.h"
#include "drawing/Tools.h"

namespace kavor::demo {

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
