#pragma once

#include <QIcon>
#include <QImage>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The drawings of the shell, made for the size at which they are shown: "logo" and the two pictures of the
// dashboard, "login_image" and "login_image_nrv". Any other name draws nothing.
class Artwork : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER name_ WRITE setName NOTIFY nameChanged)

public:
    explicit Artwork(QQuickItem* parent = nullptr);
    void setName(const QString& name);
    void paint(QPainter* painter) override;

    static void draw(QPainter& painter, const QString& name, const QRectF& area);
    // The window's icon.
    static QIcon applicationIcon();

signals:
    void nameChanged();

private:
    QString name_;
};

// A picture that another part of the client made, stretched over the item.
class Snapshot : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image MEMBER image_ WRITE setImage NOTIFY imageChanged)

public:
    using QQuickPaintedItem::QQuickPaintedItem;
    void setImage(const QImage& image);
    void paint(QPainter* painter) override;

signals:
    void imageChanged();

private:
    QImage image_;
};

} // namespace kavor
