#include "SheetRows.h"

#include "base/AppFormatter.h"
#include "base/json/Table.h"
#include "sellingsheets/SheetModules.h"

#include <algorithm>
#include <sstream>

namespace kavor::ctl {

// A sheet in JSON.
struct SheetRow {
    Int id = 0;
    std::string name;
    std::string title;
    std::string createdAt;
    std::string dateFrom;
    std::string dateTo;
    Int modules = 0;
    std::optional<Url> pdf;
};

} // namespace kavor::ctl

namespace kavor::json {

template <>
struct Table<ctl::SheetRow> {
    using R = ctl::SheetRow;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("name", &R::name),
                                              required("title", &R::title),
                                              required("createdAt", &R::createdAt),
                                              required("dateFrom", &R::dateFrom),
                                              required("dateTo", &R::dateTo),
                                              required("modules", &R::modules),
                                              optional("pdf", &R::pdf)};
};

} // namespace kavor::json

namespace kavor::ctl {

namespace {

void line(std::ostream& out, const std::string& caption, const std::string& value) {
    if (!value.empty())
        out << caption << ": " << value << '\n';
}

std::string validity(const SellingSheetOrder& sheet) {
    if (sheet.fromDate.empty() && sheet.toDate.empty())
        return {};
    return (sheet.fromDate.empty() ? "-" : sheet.fromDate) + " / " +
           (sheet.toDate.empty() ? "-" : sheet.toDate);
}

std::string styleName(Int style, const Catalogue* catalogue) {
    const auto* sheets = catalogue && catalogue->information().sellingSheet
                             ? &*catalogue->information().sellingSheet
                             : nullptr;
    if (!sheets)
        return std::to_string(style);
    const auto found = std::ranges::find(sheets->styles, style, &SellingSheet::Style::id);
    return found == sheets->styles.end() ? "(fuera de catálogo)" : found->name;
}

std::string productName(Int product, const Catalogue* catalogue) {
    if (!catalogue)
        return std::to_string(product);
    const SheetFormat found = sheetFormat(*catalogue, product);
    return found ? found.brand->name + " " + found.format->icon : "(fuera de catálogo)";
}

void writeModule(std::ostream& out, const SellingSheetOrder::Item& module, const Catalogue* catalogue) {
    const auto boxes = [&](Int product, Int number) {
        return std::to_string(number) + (number == 1 ? " caja de " : " cajas de ") +
               productName(product, catalogue);
    };
    out << "- " << boxes(module.productIdentifier1, module.productBox1);
    if (module.productIdentifier2)
        out << " y " << boxes(*module.productIdentifier2, module.productBox2.value_or(0));
    out << ", " << AppFormatter::shared().currencyFormatter(module.price);
    const auto bottle = catalogue ? pricePerBottle(module, *catalogue) : std::nullopt;
    if (bottle)
        out << ", " << AppFormatter::shared().currencyFormatter(*bottle) << " por botella";
    if (!module.promotionCode.value_or("").empty())
        out << ", ref. " << *module.promotionCode;
    out << '\n';
}

std::string orDash(const std::string& text) {
    return text.empty() ? "-" : text;
}

} // namespace

void printRows(CommandContext& context, const std::vector<SellingSheetOrder>& sheets) {
    if (context.json) {
        std::vector<SheetRow> rows;
        rows.reserve(sheets.size());
        for (const SellingSheetOrder& sheet : sheets)
            rows.push_back({sheet.identifier, sheet.orderName, sheet.title, sheet.createdAt, sheet.fromDate,
                            sheet.toDate, Int(sheet.items.size()), sheet.PDFURL});
        context.out << prettyText(rows);
        return;
    }
    for (const SellingSheetOrder& sheet : sheets)
        context.out << sheet.identifier << '\t' << orDash(sheet.orderName) << '\t' << orDash(sheet.title)
                    << '\t' << orDash(validity(sheet)) << '\t' << (sheet.PDFURL ? sheet.PDFURL->text : "-")
                    << '\n';
}

std::string summaryOf(const SellingSheetOrder& sheet, const Catalogue* catalogue) {
    std::ostringstream out;
    out << "Hoja vendedora \"" << sheet.orderName << "\"\n";
    if (sheet.identifier != 0)
        out << "Pedido: " << sheet.identifier << '\n';
    line(out, "Título", sheet.title);
    line(out, "Subtítulo", sheet.subtitle.value_or(""));
    line(out, "Estilo", styleName(sheet.styleIdentifier, catalogue));
    line(out, "Vigencia", validity(sheet));
    line(out, "Texto libre", sheet.freeText.value_or(""));
    line(out, "Logotipo del programa", sheet.isNRVLogoIncluded ? "sí" : "no");
    line(out, "Logotipo del distribuidor", sheet.distributionLogo || sheet.distributionLogoURL ? "sí" : "no");
    line(out, "Impuestos incluidos", sheet.areTaxesIncluded ? "sí" : "no");
    line(out, "Un módulo por página", sheet.showOneModulePerPage ? "sí" : "no");
    for (const auto& email : {sheet.emailToSend1, sheet.emailToSend2, sheet.emailToSend3})
        line(out, "Email", email.value_or(""));
    line(out, "PDF", sheet.PDFURL ? sheet.PDFURL->text : "");
    out << (sheet.items.empty() ? "Sin módulos\n" : "Módulos:\n");
    for (const auto& module : sheet.items)
        writeModule(out, module, catalogue);
    return out.str();
}

} // namespace kavor::ctl
