#include "PromotionRows.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<ctl::PromotionRow> {
    using R = ctl::PromotionRow;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), optional("languageId", &R::languageId), required("name", &R::name),
                   required("brand", &R::brand), optional("classification", &R::classification)};
};

} // namespace kavor::json

namespace kavor::ctl {

void printRows(CommandContext& context, const std::vector<PromotionRow>& rows) {
    if (context.json) {
        context.out << prettyText(rows);
        return;
    }
    for (const PromotionRow& row : rows)
        context.out << row.id << '\t' << (row.languageId ? std::to_string(*row.languageId) : "-") << '\t'
                    << row.name << '\t' << row.brand << '\t' << row.classification.value_or("-") << '\n';
}

} // namespace kavor::ctl
