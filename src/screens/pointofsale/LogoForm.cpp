#include "screens/pointofsale/LogoForm.h"

#include "base/Log.h"
#include "device/Background.h"
#include "device/PhotoPicker.h"
#include "interaction/QtText.h"
#include "screens/PictureText.h"

#include <utility>

namespace kavor {

namespace {

constexpr int largestLogoSide = 1024; // pixels; the logo travels inside the order

} // namespace

LogoForm::LogoForm(PhotoPicker& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

void LogoForm::fill(const std::optional<std::string>& imageLogo) {
    dataText_ = imageLogo.value_or(std::string());
    std::string png = picture_text::asPng(dataText_);
    readable_ = !png.empty() || dataText_.empty();
    if (readable_)
        dataText_ = std::move(png);
    emit changed();
}

std::optional<std::string> LogoForm::value() const {
    return dataText_.empty() ? std::nullopt : std::optional(dataText_);
}

void LogoForm::searchLogoInGallery() {
    const bool opened = photos_.pick(this, [this](const std::optional<QImage>& photo) {
        if (!photo)
            return;
        runInBackground(
            this, [image = *photo] { return picture_text::of(image, largestLogoSide); },
            [this](std::string logo) { take(std::move(logo)); });
    });
    if (!opened)
        logLine("Can't open the gallery");
}

void LogoForm::removeImageButonAction() {
    take({});
}

void LogoForm::take(std::string dataText) {
    dataText_ = std::move(dataText);
    readable_ = true;
    emit changed();
    emit edited();
}

QString LogoForm::imageLogo() const {
    return fromUtf8(dataText_);
}

QString LogoForm::unreadableLabel() const {
    return readable_
               ? QString()
               : QStringLiteral("Este logotipo no se puede mostrar aquí; sigue en el pedido tal como vino.");
}

QString LogoForm::attachLogoLabel() const {
    return dataText_.empty() ? QStringLiteral("Añadir logotipo") : QStringLiteral("Logotipo");
}

} // namespace kavor
