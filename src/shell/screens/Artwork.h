#pragma once

#include <QIcon>
#include <QImage>
#include <QQuickPaintedItem>
#include <QVariant>
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
    // A QImage.
    Q_PROPERTY(QVariant image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY imageChanged)

public:
    using QQuickPaintedItem::QQuickPaintedItem;
    [[nodiscard]] QVariant image() const { return image_; }
    void setImage(const QVariant& image);
    [[nodiscard]] bool isEmpty() const { return image_.isNull(); }
    void paint(QPainter* painter) override;

signals:
    void imageChanged();

private:
    QImage image_;
};

} // namespace kavor
