#include "ui/PriceInput.h"

#include "base/AppFormatter.h"

namespace kavor {

QString PriceInput::typed(const QString& before, const QString& text, int cursor) const {
    const auto at = std::size_t(text.left(cursor).toUtf8().size());
    return QString::fromStdString(
        AppFormatter::shared().typedPrice(before.toStdString(), text.toStdString(), at));
}

} // namespace kavor
