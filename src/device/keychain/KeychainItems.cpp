#include "device/keychain/KeychainItems.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace kavor {

namespace {

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString base64(const std::string& bytes) {
    return QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64());
}

} // namespace

KeychainStatus KeychainItems::add(const KeychainItem& item) {
    if (readOne(item.key))
        return KeychainStatus::Duplicate;
    items_.push_back(item);
    return KeychainStatus::Success;
}

KeychainStatus KeychainItems::update(const KeychainItem& item) {
    const auto found = std::ranges::find(items_, item.key, &KeychainItem::key);
    if (found == items_.end())
        return KeychainStatus::NotFound;
    *found = item;
    return KeychainStatus::Success;
}

KeychainStatus KeychainItems::remove(const KeychainKey& key) {
    const auto removed = std::erase_if(items_, [&](const KeychainItem& item) { return item.key == key; });
    return removed > 0 ? KeychainStatus::Success : KeychainStatus::NotFound;
}

std::optional<KeychainItem> KeychainItems::readOne(const KeychainKey& key) const {
    const auto found = std::ranges::find(items_, key, &KeychainItem::key);
    return found != items_.end() ? std::optional(*found) : std::nullopt;
}

std::string KeychainItems::encode() const {
    QJsonArray list;
    for (const KeychainItem& item : items_) {
        QJsonObject object{{QStringLiteral("class"), text(item.key.itemClass)},
                           {QStringLiteral("server"), text(item.key.server)},
                           {QStringLiteral("value"), base64(item.value)}};
        if (item.account)
            object.insert(QStringLiteral("account"), text(*item.account));
        list.append(object);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("items"), list}})
        .toJson(QJsonDocument::Compact)
        .toStdString();
}

KeychainItems KeychainItems::decode(std::string_view document) {
    KeychainItems items;
    const auto bytes = QByteArray::fromRawData(document.data(), qsizetype(document.size()));
    const QJsonArray list = QJsonDocument::fromJson(bytes).object().value(QStringLiteral("items")).toArray();
    for (const auto& entry : list) {
        const QJsonObject object = entry.toObject();
        const QJsonValue server = object.value(QStringLiteral("server"));
        const QJsonValue value = object.value(QStringLiteral("value"));
        const QJsonValue account = object.value(QStringLiteral("account"));
        if (!server.isString() || !value.isString())
            continue;
        KeychainItem item;
        item.key = {object.value(QStringLiteral("class")).toString().toStdString(),
                    server.toString().toStdString()};
        item.value = QByteArray::fromBase64(value.toString().toLatin1()).toStdString();
        if (account.isString())
            item.account = account.toString().toStdString();
        items.add(item);
    }
    return items;
}

} // namespace kavor
