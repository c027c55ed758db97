#include "screens/covers/CoverGallery.h"

namespace kavor {

void CoverGallery::select(int index) {
    current_ = index;
    emit currentChanged();
}

void CoverGallery::carouselCurrentItemIndexDidChange(int index) {
    if (index == current_ || !covers_.coverAt(index))
        return;
    select(index);
    emit chosen(index);
}

void CoverGallery::zoomStyleButtonAction() {
    if (const Cover* cover = covers_.coverAt(current_))
        showZoom(cover->name, {cover->firstImage, cover->secondImage}, covers_.isCover(current_) ? 0 : 1);
}

void CoverGallery::showZoom(const QString& title, const QStringList& images, int page) {
    closeZoom();
    zoom_ = new StyleSelectorOrderSheet(title, images, page, this);
    emit zoomChanged();
}

void CoverGallery::closeZoom() {
    if (!zoom_)
        return;
    zoom_->deleteLater();
    zoom_ = nullptr;
    emit zoomChanged();
}

QString CoverGallery::currentName() const {
    const Cover* cover = covers_.coverAt(current_);
    return cover ? cover->name : QString();
}

QString CoverGallery::selectedAndTotalNumberOfStylesLabel() const {
    return covers_.count() == 0 ? QString()
                                : QStringLiteral("%1 / %2").arg(current_ + 1).arg(covers_.count());
}

} // namespace kavor
