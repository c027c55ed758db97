#include "device/UserDefaults.h"

#include "base/AtomicFile.h"
#include "base/Log.h"

#include <QJsonDocument>

#include <cmath>
#include <utility>

namespace kavor {

FileUserDefaults::FileUserDefaults(std::filesystem::path file)
    : file_(std::move(file)) {
    if (const auto content = atomic_file::read(file_)) {
        values_ = QJsonDocument::fromJson(QByteArray::fromStdString(*content)).object();
    } else if (!content.error().isMissing) {
        isReadable_ = false;
        logLine("Could not read the settings: " + content.error().text());
    }
}

bool FileUserDefaults::boolean(const QString& key) const {
    return values_.value(key).toBool(false);
}

std::optional<qint64> FileUserDefaults::integer(const QString& key) const {
    const QJsonValue value = values_.value(key);
    if (!value.isDouble() || value.toDouble() != std::floor(value.toDouble()))
        return std::nullopt;
    return value.toInteger();
}

std::optional<QString> FileUserDefaults::string(const QString& key) const {
    const QJsonValue value = values_.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

void FileUserDefaults::setBoolean(const QString& key, bool value) {
    set(key, value);
}
void FileUserDefaults::setInteger(const QString& key, qint64 value) {
    set(key, value);
}
void FileUserDefaults::setString(const QString& key, const QString& value) {
    set(key, value);
}

void FileUserDefaults::remove(const QString& key) {
    if (!values_.contains(key))
        return;
    values_.remove(key);
    save();
}

void FileUserDefaults::set(const QString& key, const QJsonValue& value) {
    if (values_.contains(key) && values_.value(key) == value)
        return;
    values_.insert(key, value);
    save();
}

void FileUserDefaults::save() const {
    if (!isReadable_) // what could not be read must not be written over
        return;
    auto done = atomic_file::makeFolder(file_.parent_path());
    if (done)
        done = atomic_file::write(file_, QJsonDocument(values_).toJson().toStdString());
    if (!done)
        logLine("Could not save the settings: " + done.error().text());
}

} // namespace kavor
