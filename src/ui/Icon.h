#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace kavor {

// A line drawing of the bundled set, by name; crisp at every size and under every renderer. An unknown name
// draws nothing and is logged once.
class Icon : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor colour READ colour WRITE setColour NOTIFY colourChanged)
    // Side of the square in pixels.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    // Width of the line on the 24 x 24 grid.
    Q_PROPERTY(qreal weight READ weight WRITE setWeight NOTIFY weightChanged)
    // Fills the outline as well, for a chosen star.
    Q_PROPERTY(bool filled READ isFilled WRITE setFilled NOTIFY filledChanged)

public:
    explicit Icon(QQuickItem* parent = nullptr);

    [[nodiscard]] QString name() const { return name_; }
    [[nodiscard]] QColor colour() const { return colour_; }
    [[nodiscard]] qreal size() const { return size_; }
    [[nodiscard]] qreal weight() const { return weight_; }
    [[nodiscard]] bool isFilled() const { return filled_; }
    void setName(const QString& name);
    void setColour(const QColor& colour);
    void setSize(qreal size);
    void setWeight(qreal weight);
    void setFilled(bool filled);

    void paint(QPainter* painter) override;

    // The names that can be drawn, sorted.
    static QStringList names();

signals:
    void nameChanged();
    void colourChanged();
    void sizeChanged();
    void weightChanged();
    void filledChanged();

private:
    QString name_;
    QColor colour_{0x20, 0x26, 0x2B};
    qreal size_ = 24;
    qreal weight_ = 1.75;
    bool filled_ = false;
};

} // namespace kavor
