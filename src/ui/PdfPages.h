#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QSizeF>
#include <QUrl>

namespace kavor {

// The pages of one PDF, loaded and drawn off the UI thread. Roles: "image" (a URL for an Image) and
// "ratio" (height to width).
class PdfPages : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    // A local file or a resource; empty shows nothing.
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(int count READ count NOTIFY stateChanged)

public:
    enum State { Empty, Loading, Ready, Failed };
    Q_ENUM(State)
    enum Role { ImageRole = Qt::UserRole + 1, RatioRole };

    explicit PdfPages(QObject* parent = nullptr);
    ~PdfPages() override;

    [[nodiscard]] QUrl source() const { return source_; }
    [[nodiscard]] State state() const { return state_; }
    [[nodiscard]] int count() const { return static_cast<int>(sizes_.size()); }
    void setSource(const QUrl& source);

    // Shows a document that is already in memory, in place of the source.
    Q_INVOKABLE void setBytes(const QByteArray& bytes);
    // Reads the source (or the bytes) again, after a failure or when the file has changed.
    Q_INVOKABLE void reload();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void sourceChanged();
    void stateChanged();

private:
    void load();
    void drop();
    void take(int generation, int document, const QList<QSizeF>& sizes);

    QUrl source_;
    QByteArray bytes_;
    QList<QSizeF> sizes_;
    State state_ = Empty;
    int document_ = 0;   // number in the registry, 0 for none
    int generation_ = 0; // tells the answer to the newest load from older ones
};

} // namespace kavor
