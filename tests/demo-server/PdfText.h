#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QString>

namespace kavor::demo {

/// A PDF of the server as a reader sees it: what its pages say and how large they are.
class ReadPdf {
public:
    explicit ReadPdf(QByteArray bytes)
        : bytes_(std::move(bytes)) {
        buffer_.setBuffer(&bytes_);
        buffer_.open(QIODevice::ReadOnly);
        document_.load(&buffer_);
    }

    int pages() const { return document_.pageCount(); }
    QString words(int page) { return document_.getAllText(page).text(); }
    QSizeF size(int page) const { return document_.pagePointSize(page); }

private:
    QByteArray bytes_;
    QBuffer buffer_;
    QPdfDocument document_;
};

/// The words of all pages.
inline QString textOf(const QByteArray& pdf) {
    ReadPdf read(pdf);
    QString words;
    for (int page = 0; page < read.pages(); ++page) {
        words += read.words(page) + "\n";
    }
    return words;
}

} // namespace kavor::demo
