#include "ui/PriceInput.h"

#include "base/AppFormatter.h"

#include <algorithm>

namespace kavor {

namespace {

constexpr QChar minus = u'-';

} // namespace

QString PriceInput::typed(const QString& before, const QString& text, int cursor, bool isSigned) const {
    if (isSigned && text.startsWith(minus)) {
        const QString rest = before.startsWith(minus) ? before.mid(1) : before;
        return minus + typed(rest, text.mid(1), std::max(0, cursor - 1), false);
    }
    const auto at = std::size_t(text.left(cursor).toUtf8().size());
    return QString::fromStdString(
        AppFormatter::shared().typedPrice(before.toStdString(), text.toStdString(), at));
}

} // namespace kavor
