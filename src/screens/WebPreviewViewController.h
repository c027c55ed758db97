#pragma once

#include <QByteArray>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>

namespace kavor {

class Clock;
class PlainDownloader;

// Shows one document of the server: the copy on the device when there is one, otherwise the document as it
// comes from the network, which the PDF cache stores beside.
class WebPreviewViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that shows a document")
    Q_PROPERTY(QString title READ title CONSTANT)
    // A local file, or the bytes that came; both empty while the document is on its way.
    Q_PROPERTY(QUrl source READ source NOTIFY changed)
    Q_PROPERTY(QByteArray bytes READ bytes NOTIFY changed)
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool failed READ hasFailed NOTIFY changed)

public:
    static constexpr int timeOutSeconds = 60;

    WebPreviewViewController(const QUrl& previewUrl, QString title, PlainDownloader& downloader, Clock& clock,
                             QObject* parent);

    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] QUrl source() const { return source_; }
    [[nodiscard]] QByteArray bytes() const { return bytes_; }
    [[nodiscard]] bool isLoading() const { return state_ == State::Loading; }
    [[nodiscard]] bool hasFailed() const { return state_ == State::Failed; }

    // Fetches the document; also "Reintentar".
    Q_INVOKABLE void load();
    // "Listo": the screen closes.
    Q_INVOKABLE void dismissAction() { emit dismissed(); }

signals:
    void changed();
    void dismissed();

private:
    enum class State { Loading, Shown, Failed };

    void fetch(const QUrl& remote);
    void finish(State state);

    QUrl previewUrl_;
    QString title_;
    PlainDownloader& downloader_;
    Clock& clock_;
    QUrl source_;
    QByteArray bytes_;
    State state_ = State::Loading;
    quint64 attempt_ = 0; // tells the answer to the newest request from older ones
    quint64 timeOut_ = 0;
};

} // namespace kavor
