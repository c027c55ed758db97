#include "ui/PdfPages.h"

#include "ui/PdfDocument.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QQmlFile>

#include <memory>
#include <utility>

namespace kavor {

namespace {

struct Loaded {
    int document = 0;
    QList<QSizeF> sizes;
};

// Runs on the pool's thread.
Loaded loadDocument(QByteArray bytes, const QString& path) {
    if (bytes.isEmpty()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        bytes = file.readAll();
    }
    const auto document = std::make_shared<PdfDocument>(std::move(bytes));
    if (!document->isReadable())
        return {};
    return {PdfRegistry::add(document), document->pageSizes()};
}

} // namespace

PdfPages::PdfPages(QObject* parent)
    : QAbstractListModel(parent) {}

PdfPages::~PdfPages() {
    PdfRegistry::remove(document_);
}

void PdfPages::setSource(const QUrl& source) {
    if (source_ == source)
        return;
    source_ = source;
    bytes_.clear();
    emit sourceChanged();
    load();
}

void PdfPages::setBytes(const QByteArray& bytes) {
    bytes_ = bytes;
    if (!source_.isEmpty()) {
        source_.clear();
        emit sourceChanged();
    }
    load();
}

void PdfPages::reload() {
    load();
}

void PdfPages::load() {
    drop();
    const int generation = ++generation_;
    state_ = source_.isEmpty() && bytes_.isEmpty() ? Empty : Loading;
    emit stateChanged();
    if (state_ == Empty)
        return;
    const QString path = QQmlFile::urlToLocalFileOrQrc(source_);
    PdfDocument::pool().start([model = QPointer(this), bytes = bytes_, path, generation] {
        const Loaded loaded = loadDocument(bytes, path);
        QMetaObject::invokeMethod(
            qApp,
            [model, loaded, generation] {
                if (model)
                    model->take(generation, loaded.document, loaded.sizes);
                else
                    PdfRegistry::remove(loaded.document);
            },
            Qt::QueuedConnection);
    });
}

void PdfPages::drop() {
    PdfRegistry::remove(std::exchange(document_, 0));
    if (sizes_.isEmpty())
        return;
    beginResetModel();
    sizes_.clear();
    endResetModel();
}

void PdfPages::take(int generation, int document, const QList<QSizeF>& sizes) {
    if (generation != generation_) {
        PdfRegistry::remove(document);
        return;
    }
    document_ = document;
    if (!sizes.isEmpty()) {
        beginInsertRows({}, 0, static_cast<int>(sizes.size()) - 1);
        sizes_ = sizes;
        endInsertRows();
    }
    state_ = sizes.isEmpty() ? Failed : Ready;
    emit stateChanged();
}

int PdfPages::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PdfPages::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QSizeF size = sizes_[index.row()];
    if (role == ImageRole)
        return QStringLiteral("image://kavorpdf/%1/%2").arg(document_).arg(index.row());
    if (role == RatioRole)
        return size.height() / size.width();
    return {};
}

QHash<int, QByteArray> PdfPages::roleNames() const {
    return {{ImageRole, "image"}, {RatioRole, "ratio"}};
}

} // namespace kavor
