#pragma once

#include "screens/ScreenController.h"
#include "screens/WebPreviewViewController.h"

namespace kavor {

// The details document of an activation over the whole window.
class ActivationDetailViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the choice of elements")
    Q_PROPERTY(kavor::WebPreviewViewController* document READ document CONSTANT)

public:
    ActivationDetailViewController(const QUrl& detailsPDF, const QString& title, PlainDownloader& downloader,
                                   Clock& clock, QObject* parent = nullptr);

    static QUrl view();

    [[nodiscard]] WebPreviewViewController* document() { return &document_; }

private:
    WebPreviewViewController document_;
};

} // namespace kavor
