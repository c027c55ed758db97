#include "sellingsheets/SheetRules.h"

#include "base/StopProcess.h"
#include "base/Text.h"
#include "sellingsheets/StyleSingleton.h"

#include <algorithm>

namespace kavor {

namespace {

Int lengthOf(const std::string& text) {
    return Int(text::characterCount(text));
}

const SellingSheet& sheetsOf(const Catalogue& catalogue) {
    const auto& sheets = catalogue.information().sellingSheet;
    if (!sheets)
        stopProcess("selling sheet catalogue");
    return *sheets;
}

std::string titleFaults(const SellingSheetOrder& order, Int limit) {
    if (order.title.empty())
        return "El título está vacío.\n";
    return lengthOf(order.title) > limit
               ? "El título está vacío o se ha excedido el número de caracteres posibles.\n"
               : "";
}

// The form "yyyy-MM-dd" sorts as the dates do.
std::string dateFaults(const SellingSheetOrder& order) {
    if (order.fromDate.empty() || order.toDate.empty())
        return {};
    if (order.fromDate > order.toDate)
        return "La fecha de inicio es posterior a la de entrega.\n";
    return order.fromDate == order.toDate ? "La fecha de inicio es igual a la de entrega.\n" : "";
}

// An address that is not set passes, unlike an empty one: that is meant. The form sets all three.
bool lacksAddress(const SellingSheetOrder& order) {
    const auto isEmpty = [](const std::optional<std::string>& email) { return email && email->empty(); };
    return isEmpty(order.emailToSend1) && isEmpty(order.emailToSend2) && isEmpty(order.emailToSend3);
}

} // namespace

StyleSingleton& StyleSingleton::shared() {
    static StyleSingleton instance;
    return instance;
}

std::string validationText(const SellingSheetOrder& order, const Catalogue& catalogue) {
    const auto& limits = sheetsOf(catalogue).validations;
    std::string faults = titleFaults(order, limits.titleLength);
    if (order.orderName.empty())
        faults += "El nombre de la hoja está vacío.\n";
    if (lengthOf(order.subtitle.value_or("")) > limits.subtitleLenth)
        faults += "Subtítulo demasiado largo.\n";
    faults += dateFaults(order);
    if (lacksAddress(order))
        faults += "Introduce al menos una dirección de email.\n";
    return faults;
}

SellingSheetOrder newSheet(const SellingSheet& catalogue) {
    SellingSheetOrder sheet;
    const auto styles = stylesInOrder(catalogue);
    if (!styles.empty())
        sheet.styleIdentifier = styles.front().id;
    sheet.isNRVLogoIncluded = true;
    sheet.emailToSend1 = sheet.emailToSend2 = sheet.emailToSend3 = "";
    return sheet;
}

SellingSheetOrder copyOf(const SellingSheetOrder& sheet) {
    SellingSheetOrder copy = sheet;
    copy.identifier = 0;
    copy.save.reset();
    copy.orderToken.clear();
    copy.createdAt.clear();
    copy.PDFURL.reset();
    copy.distributionLogoURL.reset();
    copy.orderName += " (copia)";
    return copy;
}

std::string draftName(const LocalDateTime& now, const std::function<bool(const std::string&)>& isTaken) {
    const std::string moment = now.fileNameText();
    std::string name = moment;
    for (int number = 1; isTaken(name); ++number)
        name = moment + "(" + std::to_string(number) + ")";
    return name;
}

std::vector<SellingSheet::Style> stylesInOrder(const SellingSheet& catalogue) {
    auto styles = catalogue.styles;
    std::ranges::stable_sort(styles, {}, &SellingSheet::Style::position);
    return styles;
}

std::optional<bool> isInForce(const SellingSheetOrder& sheet, std::string_view today) {
    if (sheet.toDate.empty())
        return std::nullopt;
    return sheet.toDate >= today;
}

} // namespace kavor
