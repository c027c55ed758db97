#pragma once

#include "device/FilmPlayer.h"

#include <QPointer>
#include <QQuickItem>

namespace kavor {

// Shows what a film player plays, whole and in the middle, with any way of drawing.
class FilmSurface : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kavor::FilmPlayer* player READ player WRITE setPlayer NOTIFY playerChanged)

public:
    explicit FilmSurface(QQuickItem* parent = nullptr);

    [[nodiscard]] FilmPlayer* player() const { return player_; }
    void setPlayer(FilmPlayer* player);

signals:
    void playerChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;

private:
    [[nodiscard]] QRectF placeOf(QSizeF picture) const;

    QPointer<FilmPlayer> player_;
};

} // namespace kavor
