#pragma once

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QRawFont>
#include <QString>

#include <filesystem>
#include <optional>

namespace kavor {

// Fonts that the client brings at run time, by the names that the catalogue gives them. Main thread only.
//
// The font database of the process must not change while another thread draws text, so it takes in only what
// lies on the device before the first window (addStored). A font that arrives later is drawn by itself, as a
// picture, until the next start finds it on the device.
class FontRegistry : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Takes the font files of a folder into the font database; what is no font is passed over, and so is a
    // folder that is not there. Before the first window only.
    void addStored(const std::filesystem::path& folder);

    // Gives the bytes of a font file a name; what bore it before is forgotten, the same bytes change nothing.
    // False, and nothing changes, when the bytes form no font.
    virtual bool registerFont(const QString& name, const QByteArray& data);
    // Forgets a name; an unknown one is no fault.
    virtual void unregisterFont(const QString& name);

    [[nodiscard]] bool isRegistered(const QString& name) const { return fonts_.contains(name); }
    // The font at a size in pixels, with its own weight and slant, for texts of the window. None for an
    // unknown name and for a font that arrived after the first window.
    [[nodiscard]] virtual std::optional<QFont> font(const QString& name, int pixelSize) const;
    // The family to draw with in the window; empty where font answers none.
    Q_INVOKABLE QString family(const QString& name) const;
    // One line of text drawn in any registered font, as wide and high as the line; null for an unknown name
    // or where there is nothing to draw.
    [[nodiscard]] QImage picture(const QString& name, const QString& text, int pixelSize,
                                 QColor colour) const;

signals:
    void changed(const QString& name);

private:
    struct Entry {
        QByteArray digest;
        QRawFont raw;
    };

    QHash<QByteArray, QFont> stored_; // what the font database holds, by the digest of the file
    QHash<QString, Entry> fonts_;
};

} // namespace kavor
