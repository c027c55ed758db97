#pragma once

#include <QJsonObject>
#include <QString>

#include <filesystem>
#include <optional>

namespace kavor {

// The two defaults of the session.
namespace default_key {
inline constexpr char loadIntoInitialViewController[] = "loadIntoInitialViewController";
inline constexpr char needToDownloadServerInformationWhenOnline[] =
    "needToDownloadServerInformationWhenOnline";
} // namespace default_key

// Small settings by key. A value of another type reads as not set.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;
    // False when not set.
    [[nodiscard]] virtual bool boolean(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<qint64> integer(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<QString> string(const QString& key) const = 0;
    virtual void setBoolean(const QString& key, bool value) = 0;
    virtual void setInteger(const QString& key, qint64 value) = 0;
    virtual void setString(const QString& key, const QString& value) = 0;
    virtual void remove(const QString& key) = 0;
};

// Settings in one JSON file, rewritten whole with each change. A file that is missing or broken reads as
// empty; a write that fails is logged and the value lives on in memory.
class FileUserDefaults : public UserDefaults {
public:
    explicit FileUserDefaults(std::filesystem::path file);
    [[nodiscard]] bool boolean(const QString& key) const override;
    [[nodiscard]] std::optional<qint64> integer(const QString& key) const override;
    [[nodiscard]] std::optional<QString> string(const QString& key) const override;
    void setBoolean(const QString& key, bool value) override;
    void setInteger(const QString& key, qint64 value) override;
    void setString(const QString& key, const QString& value) override;
    void remove(const QString& key) override;

private:
    void set(const QString& key, const QJsonValue& value);
    void save() const;

    std::filesystem::path file_;
    QJsonObject values_;
    bool isReadable_ = true;
};

} // namespace kavor
