#pragma once

#include <QByteArray>
#include <QIODevice>

namespace kavor {

// The body of a request as a device that can be read once and not again, so that the HTTP library cannot send
// the request a second time on its own when the connection breaks.
class OneTimeBody : public QIODevice {
public:
    explicit OneTimeBody(const QByteArray& content, QObject* parent = nullptr);

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override;
    [[nodiscard]] bool atEnd() const override { return bytesAvailable() == 0; }
    bool reset() override { return false; }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray content_;
    qint64 position_ = 0;
};

} // namespace kavor
