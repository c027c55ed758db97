#pragma once

#include "device/PhotoPicker.h"

#include <QPointer>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kavor {

class AlertPresenter;
class Clock;
class UserDefaults;

// The photo library of a desktop: the picture files of the device, shown over the window. It opens in the
// folder in which the user was last, and stays open over a file that cannot be used.
class PhotoLibraryViewController : public PhotoPicker {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)
    // A chosen file is being read.
    Q_PROPERTY(bool reading READ isReading NOTIFY readingChanged)
    Q_PROPERTY(QUrl folder READ folder NOTIFY folderChanged)
    Q_PROPERTY(QString folderText READ folderText NOTIFY folderChanged)
    Q_PROPERTY(bool upPossible READ isUpPossible NOTIFY folderChanged)
    // Where pictures usually are, each {text, icon, folder, current}.
    Q_PROPERTY(QVariantList places READ places NOTIFY folderChanged)
    Q_PROPERTY(QStringList nameFilters READ nameFilters CONSTANT)
    Q_PROPERTY(double largestFile READ largestFile CONSTANT) // bytes

public:
    // The key of the folder in which the user was last.
    static constexpr char folderKey[] = "photoFolder";

    // The services outlive the library.
    PhotoLibraryViewController(AlertPresenter& alerts, UserDefaults& defaults, Clock& clock,
                               QObject* parent = nullptr);

    bool pick(QObject* context, Callback callback) override;

    // A folder or a file of the list was tapped. The second press of a double click, which would hit what has
    // just come under the finger, counts for nothing.
    Q_INVOKABLE void open(const QUrl& entry);
    Q_INVOKABLE void goUp();
    // Closes the library without a photo.
    Q_INVOKABLE void cancel();

    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] bool isReading() const { return reading_; }
    // Whether a tap counts.
    [[nodiscard]] bool isSettled() const { return settled_; }
    [[nodiscard]] QUrl folder() const { return QUrl::fromLocalFile(folder_); }
    [[nodiscard]] QString folderText() const;
    [[nodiscard]] bool isUpPossible() const;
    [[nodiscard]] QVariantList places() const;
    [[nodiscard]] QStringList nameFilters() const { return photoNameFilters(); }
    [[nodiscard]] double largestFile() const { return double(largestPhotoFile); }

signals:
    void visibleChanged();
    void readingChanged();
    void folderChanged();

private:
    void openFolder(const QString& folder);
    void letSettle();
    void read(const QString& path);
    void finish(const std::optional<QImage>& photo);
    void setReading(bool reading);

    AlertPresenter& alerts_;
    UserDefaults& defaults_;
    Clock& clock_;
    QString folder_;
    QPointer<QObject> context_;
    bool bound_ = false; // to the context
    QMetaObject::Connection contextGone_;
    Callback callback_;
    int picks_ = 0;   // tells a late reading from the one that is waited for
    int changes_ = 0; // of what is listed
    bool settled_ = false;
    bool visible_ = false;
    bool reading_ = false;
};

} // namespace kavor
