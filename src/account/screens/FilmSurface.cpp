#include "account/screens/FilmSurface.h"

#include <QQuickWindow>
#include <QSGImageNode>

namespace kavor {

FilmSurface::FilmSurface(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void FilmSurface::setPlayer(FilmPlayer* player) {
    if (player_ == player)
        return;
    if (player_)
        disconnect(player_, nullptr, this, nullptr);
    player_ = player;
    if (player_)
        connect(player_, &FilmPlayer::frameChanged, this, &QQuickItem::update);
    update();
    emit playerChanged();
}

QRectF FilmSurface::placeOf(QSizeF picture) const {
    const QSizeF size = picture.scaled(width(), height(), Qt::KeepAspectRatio);
    return {{(width() - size.width()) / 2, (height() - size.height()) / 2}, size};
}

QSGNode* FilmSurface::updatePaintNode(QSGNode* former, UpdatePaintNodeData* /*data*/) {
    auto* node = static_cast<QSGImageNode*>(former);
    const QImage picture = player_ ? player_->frame() : QImage();
    if (picture.isNull() || width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
    }
    node->setTexture(window()->createTextureFromImage(picture, QQuickWindow::TextureIsOpaque));
    node->setRect(placeOf(picture.size()));
    return node;
}

} // namespace kavor
