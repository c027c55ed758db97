#pragma once

#include <QByteArray>
#include <QFont>
#include <QHash>
#include <QObject>
#include <QString>

#include <optional>

namespace kavor {

// Fonts that the client brings at run time, by the names that the catalogue gives them. Main thread only.
class FontRegistry : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~FontRegistry() override;

    // Registers the bytes of a font file. False, and nothing changes, when the name is taken or the bytes
    // form no font.
    virtual bool registerFont(const QString& name, const QByteArray& data);
    // Removes a registered font; an unknown name is no fault.
    virtual void unregisterFont(const QString& name);

    // The registered font at a size in pixels, with its own weight and slant.
    [[nodiscard]] virtual std::optional<QFont> font(const QString& name, int pixelSize) const;
    // The family to draw with; empty for an unknown name.
    Q_INVOKABLE QString family(const QString& name) const;

signals:
    void changed(const QString& name);

private:
    struct Entry {
        int id = -1;
        QFont font;
    };
    QHash<QString, Entry> fonts_;
};

} // namespace kavor
