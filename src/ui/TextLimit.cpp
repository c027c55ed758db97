#include "ui/TextLimit.h"

#include "base/Text.h"

#include <algorithm>

namespace kavor {

int TextLimit::length(const QString& text) const {
    return int(text::characterCount(text.toStdString()));
}

QString TextLimit::typed(const QString& before, const QString& text, int cursor, int maximum) const {
    const int allowed = std::max(maximum, length(before));
    if (length(text) <= allowed)
        return text;
    const QString rest = text.mid(cursor);
    const int room = std::max(0, allowed - length(rest));
    return QString::fromStdString(text::firstCharacters(text.left(cursor).toStdString(), std::size_t(room))) +
           rest;
}

} // namespace kavor
