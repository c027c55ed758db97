#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The zoom of a carousel: pages through large pictures.
class StyleSelectorOrderSheet : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that shows it")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(QString image READ image NOTIFY pageChanged)
    // "1 / 2"
    Q_PROPERTY(QString imagenCount READ imagenCount NOTIFY pageChanged)
    Q_PROPERTY(bool hasLeft READ hasLeft NOTIFY pageChanged)
    Q_PROPERTY(bool hasRight READ hasRight NOTIFY pageChanged)

public:
    StyleSelectorOrderSheet(QString title, QStringList images, int page, QObject* parent);

    Q_INVOKABLE void leftButtonAction();
    Q_INVOKABLE void rightButtonAction();

    [[nodiscard]] const QString& title() const { return title_; }
    [[nodiscard]] int count() const { return int(images_.size()); }
    [[nodiscard]] QString image() const { return images_.value(page_); }
    [[nodiscard]] QString imagenCount() const;
    [[nodiscard]] bool hasLeft() const { return page_ > 0; }
    [[nodiscard]] bool hasRight() const { return page_ + 1 < images_.size(); }

signals:
    void pageChanged();

private:
    void goTo(int page);

    QString title_;
    QStringList images_;
    int page_ = 0;
};

} // namespace kavor
