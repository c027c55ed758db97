#pragma once

#include "textile/TextileIntermediateData.h"
#include "textile/screens/TextileModels.h"
#include "textile/screens/TextileRoad.h"
#include "textile/screens/TextileServices.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

namespace kavor {

// The draft in work as the steps of the section share it: what is changed and kept, its road, its cart, and
// its garments with the text on them.
class TextileDesk : public QObject {
    Q_OBJECT
public:
    explicit TextileDesk(const TextileServices& services, QObject* parent = nullptr);
    ~TextileDesk() override;

    [[nodiscard]] const TextileServices& services() const { return services_; }
    [[nodiscard]] TextileIntermediateData& draft() const { return *draft_; }
    [[nodiscard]] TextileRoad& road() const { return *road_; }

    // Changes the draft and keeps it. The first change to an order that was sent begins an empty draft
    // instead.
    void change(const std::function<void(TextileIntermediateData&)>& edit);
    // An empty draft takes the place of this one.
    void beginAnew();
    // Takes out of the cart what left the catalogue, and tells the user.
    void removeGoneArticles();

    // The text to print, or what stands for it until there is one.
    [[nodiscard]] QString sampleText() const;
    // A text as a typography writes it: "text", and "family" to write it with or "picture" where the window
    // does not have the font; both are empty for a font that is not on the device.
    [[nodiscard]] QVariantMap lettering(const Textile::Typography* typography, const QString& text,
                                        const QString& ink) const;
    // A garment with the text of the draft on it: "image", "colour", and its "lettering" with "ink".
    [[nodiscard]] QVariantMap garment(const Textile::Item* article, const Textile::Color* color) const;
    // A row for each line of the cart.
    [[nodiscard]] std::vector<TextileCartRow> cartRows() const;
    [[nodiscard]] const TextileIntermediateData::OrderItem* cartLine(const QString& key) const;

    static QString keyOf(const TextileUniqueItem& item);
    // "Camiseta · Hombre"
    static QString garmentName(Int format, Int gender);
    static QString brandName(Int brand);
    static QString colourOf(const Textile::Color* color);
    // A number as the user reads it.
    static QString number(UInt value);

signals:
    void changed();
    // Another draft is in work.
    void replaced();
    // It is, because the one before was sent.
    void begunAnew();

private:
    void take(std::shared_ptr<TextileIntermediateData> draft);
    [[nodiscard]] QString pictureOf(const QString& font, const QString& text, const QString& ink) const;

    TextileServices services_;
    std::shared_ptr<TextileIntermediateData> draft_;
    std::unique_ptr<TextileRoad> road_;
    mutable QHash<QStringList, QString> pictures_; // of texts, since each takes its time
};

} // namespace kavor
