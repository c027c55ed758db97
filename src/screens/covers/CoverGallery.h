#pragma once

#include "screens/covers/CoverModel.h"
#include "screens/covers/StyleSelectorOrderSheet.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kavor {

// A choice among covers: a carousel that can turn the one in the middle over and show it large.
class CoverGallery : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that offers covers")
    Q_PROPERTY(kavor::CoverModel* covers READ covers CONSTANT)
    // The place of the one in the middle.
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    Q_PROPERTY(QString currentName READ currentName NOTIFY currentChanged)
    // "2 / 5"; empty without covers.
    Q_PROPERTY(QString selectedAndTotalNumberOfStylesLabel READ selectedAndTotalNumberOfStylesLabel NOTIFY
                   currentChanged)
    // The pictures on show over the screen, null when there are none.
    Q_PROPERTY(kavor::StyleSelectorOrderSheet* zoom READ zoom NOTIFY zoomChanged)

public:
    using QObject::QObject;

    void setCovers(std::vector<Cover> covers) { covers_.setCovers(std::move(covers)); }
    // Puts a cover into the middle without telling that somebody chose it.
    void select(int index);
    void showZoom(const QString& title, const QStringList& images, int page);

    // The carousel, or the strip of miniatures, chose a cover.
    Q_INVOKABLE void carouselCurrentItemIndexDidChange(int index);
    Q_INVOKABLE void flipStyleButtonAction() { covers_.flip(current_); }
    Q_INVOKABLE void zoomStyleButtonAction();
    Q_INVOKABLE void closeZoom();

    [[nodiscard]] CoverModel* covers() { return &covers_; }
    [[nodiscard]] const CoverModel* covers() const { return &covers_; }
    [[nodiscard]] int current() const { return current_; }
    [[nodiscard]] QString currentName() const;
    [[nodiscard]] QString selectedAndTotalNumberOfStylesLabel() const;
    [[nodiscard]] StyleSelectorOrderSheet* zoom() const { return zoom_; }

signals:
    void currentChanged();
    void zoomChanged();
    // The user chose another cover.
    void chosen(int index);

private:
    CoverModel covers_;
    StyleSelectorOrderSheet* zoom_ = nullptr;
    int current_ = 0;
};

} // namespace kavor
