#include "ActivationRows.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<ctl::ActivationRow> {
    using R = ctl::ActivationRow;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("definitionId", &R::definitionId),
                                              required("brand", &R::brand),
                                              required("name", &R::name),
                                              required("numberMade", &R::numberMade),
                                              required("quota", &R::quota),
                                              required("previousDays", &R::previousDays)};
};

} // namespace kavor::json

namespace kavor::ctl {

void printRows(CommandContext& context, const std::vector<ActivationRow>& rows) {
    if (context.json) {
        context.out << prettyText(rows);
        return;
    }
    for (const ActivationRow& row : rows)
        context.out << row.id << '\t' << row.brand << '\t' << row.name << '\t' << row.numberMade << '/'
                    << row.quota << '\t' << row.previousDays << '\n';
}

} // namespace kavor::ctl
