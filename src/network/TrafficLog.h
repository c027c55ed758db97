#pragma once

#include "http/HttpExchange.h"
#include "network/KnownSecrets.h"

#include <QFile>
#include <QJsonObject>
#include <QString>

#include <memory>

namespace kavor {

// Passwords and tokens taken out of a text: values of JSON members, of form fields and behind "Bearer".
QByteArray redacted(const QByteArray& text);
// A header's value, blanked when the header carries a secret.
QByteArray redactedHeader(const QByteArray& name, const QByteArray& value);

// One line of JSON for each request and its answer, for diagnosis; written only when asked for. Nothing
// secret goes into it: neither what bears a secret's name nor the known secrets, wherever they stand.
// Members: "time", "operation", "method", "path", "status" (0 without an answer), "ms", "fault" (when there
// is one), "requestHeaders", "requestBody", "answerHeaders", "answerBody".
class TrafficLog {
public:
    // An empty name writes nothing.
    explicit TrafficLog(const QString& fileName);

    struct Entry {
        QString operation;
        HttpRequest request;
        HttpHeaders additionalHeaders;
        HttpAnswer answer;
        qint64 milliseconds = 0;
    };
    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }
    // A password or token that no line shows from now on.
    void keepOut(const QString& secret) { secrets_->add(secret); }
    // For who writes another log.
    [[nodiscard]] std::shared_ptr<const KnownSecrets> knownSecrets() const { return secrets_; }
    void write(const Entry& entry);

private:
    [[nodiscard]] QString shown(const QByteArray& text) const;
    [[nodiscard]] QString bodyText(const QByteArray& body) const;
    [[nodiscard]] QJsonObject headerObject(const HttpHeaders& headers) const;

    QFile file_;
    std::shared_ptr<KnownSecrets> secrets_ = std::make_shared<KnownSecrets>();
};

} // namespace kavor
