#include "http/OneTimeBody.h"

#include <algorithm>
#include <cstring>

namespace kavor {

OneTimeBody::OneTimeBody(const QByteArray& content, QObject* parent)
    : QIODevice(parent)
    , content_(content) {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 OneTimeBody::bytesAvailable() const {
    return content_.size() - position_ + QIODevice::bytesAvailable();
}

qint64 OneTimeBody::readData(char* data, qint64 most) {
    if (position_ >= content_.size())
        return -1;
    const qint64 count = std::min<qint64>(most, content_.size() - position_);
    std::memcpy(data, content_.constData() + position_, std::size_t(count));
    position_ += count;
    return count;
}

} // namespace kavor
