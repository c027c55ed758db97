#pragma once

#include <QImage>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace kavor {

// The user's photo library.
class PhotoPicker : public QObject {
    Q_OBJECT
public:
    // The chosen photo, upright, or nothing when the user chose none or it cannot be read.
    using Callback = std::function<void(const std::optional<QImage>&)>;

    using QObject::QObject;
    // False when the library cannot be opened; the callback then never runs. It is dropped with its context.
    virtual bool pick(QObject* context, Callback callback) = 0;
};

// Always picks the one file that it was given, decoded off the main thread.
class FilePhotoPicker : public PhotoPicker {
    Q_OBJECT
public:
    static constexpr qint64 largestFile = 64LL * 1024 * 1024;

    explicit FilePhotoPicker(QString path = {}, QObject* parent = nullptr);
    void setPath(const QString& path) { path_ = path; }
    bool pick(QObject* context, Callback callback) override;

private:
    QString path_;
};

} // namespace kavor
