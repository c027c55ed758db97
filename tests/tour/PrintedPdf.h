#pragma once

#include <QByteArray>
#include <QString>

namespace kavor {

// A PDF that a tour was given, as a reader takes it.
class PrintedPdf {
public:
    // Throws a TouchFailure for what is no PDF.
    explicit PrintedPdf(QByteArray content);

    [[nodiscard]] int pages() const { return pages_; }
    [[nodiscard]] const QString& text() const { return text_; }
    // Throws a TouchFailure when no page says so; blanks of any kind and number count as one.
    void mustSay(const QString& part) const;
    void mustSay(const std::string& part) const { mustSay(QString::fromStdString(part)); }

private:
    int pages_ = 0;
    QString text_;
};

} // namespace kavor
