#include "screens/covers/StyleSelectorOrderSheet.h"

namespace kavor {

StyleSelectorOrderSheet::StyleSelectorOrderSheet(QString title, QStringList images, int page, QObject* parent)
    : QObject(parent)
    , title_(std::move(title))
    , images_(std::move(images)) {
    goTo(page);
}

void StyleSelectorOrderSheet::goTo(int page) {
    if (page < 0 || page >= images_.size() || page == page_)
        return;
    page_ = page;
    emit pageChanged();
}

void StyleSelectorOrderSheet::leftButtonAction() {
    goTo(page_ - 1);
}

void StyleSelectorOrderSheet::rightButtonAction() {
    goTo(page_ + 1);
}

QString StyleSelectorOrderSheet::imagenCount() const {
    return images_.isEmpty() ? QString() : QStringLiteral("%1 / %2").arg(page_ + 1).arg(images_.size());
}

} // namespace kavor
