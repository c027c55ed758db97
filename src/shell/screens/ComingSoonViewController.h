#pragma once

#include "screens/ScreenController.h"

#include <QtQml/qqmlregistration.h>

#include <utility>

namespace kavor {

// Stands for a section that is still to come: says so and leads back.
class ComingSoonViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title MEMBER title_ CONSTANT)
    Q_PROPERTY(QString icon MEMBER icon_ CONSTANT)

public:
    ComingSoonViewController(QString title, QString icon, QObject* parent = nullptr)
        : ScreenController(parent)
        , title_(std::move(title))
        , icon_(std::move(icon)) {}

    Q_INVOKABLE void close() { emit closed(); }

private:
    QString title_;
    QString icon_;
};

} // namespace kavor
