#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>

namespace kavor {

class PhotoPicker;

// The bar's own logo: a photo that the user picks, as it travels inside an order.
class LogoForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen")
    // The source of the picture; empty without a logo.
    Q_PROPERTY(QString imageLogo READ imageLogo NOTIFY changed)
    Q_PROPERTY(QString attachLogoLabel READ attachLogoLabel NOTIFY changed)
    // Says that the logo cannot be shown here and stays in the order; empty for one that can.
    Q_PROPERTY(QString unreadableLabel READ unreadableLabel NOTIFY changed)

public:
    // The photos outlive the form.
    explicit LogoForm(PhotoPicker& photos, QObject* parent = nullptr);

    // Takes over the logo of a record, a data text. One that this device cannot read stays as it came.
    void fill(const std::optional<std::string>& imageLogo);
    // The logo as "data:image/png;base64,..."; none without a logo.
    [[nodiscard]] std::optional<std::string> value() const;

    Q_INVOKABLE void searchLogoInGallery();
    Q_INVOKABLE void removeImageButonAction(); // spelt so in the screen's design

    [[nodiscard]] QString imageLogo() const;
    [[nodiscard]] QString attachLogoLabel() const;
    [[nodiscard]] QString unreadableLabel() const;

signals:
    void changed();
    // The user chose another logo, or none.
    void edited();

private:
    void take(std::string dataText);

    PhotoPicker& photos_;
    std::string dataText_;
    bool readable_ = true;
};

} // namespace kavor
