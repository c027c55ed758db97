#include "network/TrafficLog.h"

#include "base/Log.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace kavor {

namespace {

constexpr qsizetype longestBody = qsizetype(1024) * 1024;
const QByteArray blanked = "***";

bool isSecretName(const QByteArray& name) {
    static constexpr std::array secrets{"password", "token",         "authorization",
                                        "cookie",   "terminal_code", "secret"};
    const QByteArray lower = name.toLower();
    // A name that hides behind escapes is taken for a secret.
    return lower.contains('\\') || std::any_of(secrets.begin(), secrets.end(),
                                               [&](const char* word) { return lower.contains(word); });
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Walks over JSON text, whole or cut short, and copies it without the values of secret members.
class JsonRedactor {
public:
    explicit JsonRedactor(const QByteArray& text)
        : text_(text) {}

    QByteArray run() {
        while (at_ < text_.size()) {
            if (text_[at_] != '"') {
                out_ += text_[at_++];
                continue;
            }
            const QByteArray name = text_.mid(at_, stringEnd(at_) - at_);
            out_ += name;
            at_ += name.size();
            if (isFollowedByColon() && isSecretName(name))
                blankValue();
        }
        return out_;
    }

private:
    // One past the closing quote of the string that begins here.
    [[nodiscard]] qsizetype stringEnd(qsizetype from) const {
        for (qsizetype i = from + 1; i < text_.size(); ++i) {
            if (text_[i] == '\\')
                ++i;
            else if (text_[i] == '"')
                return i + 1;
        }
        return text_.size();
    }

    // Copies blanks and the colon behind a name.
    bool isFollowedByColon() {
        while (at_ < text_.size() && isBlank(text_[at_]))
            out_ += text_[at_++];
        if (at_ >= text_.size() || text_[at_] != ':')
            return false;
        out_ += text_[at_++];
        while (at_ < text_.size() && isBlank(text_[at_]))
            out_ += text_[at_++];
        return true;
    }

    void blankValue() {
        int depth = 0;
        while (at_ < text_.size()) {
            const char c = text_[at_];
            if (depth == 0 && (c == ',' || c == '}' || c == ']'))
                break;
            if (c == '"') {
                at_ = stringEnd(at_);
                continue;
            }
            depth += c == '{' || c == '[' ? 1 : c == '}' || c == ']' ? -1 : 0;
            ++at_;
        }
        out_ += '"' + blanked + '"';
    }

    const QByteArray& text_;
    qsizetype at_ = 0;
    QByteArray out_;
};

// name=value pairs of forms and queries, wherever they stand, bearer tokens, and what a device is registered
// with.
QByteArray withoutPlainSecrets(const QByteArray& text) {
    static const QRegularExpression secret(
        QStringLiteral(
            "((?:password|token|authorization|cookie|terminal_code|secret)\\w*=|bearer\\s+|registration "
            "token:\\s*)[^&\\s\"'<>]+"),
        QRegularExpression::CaseInsensitiveOption);
    return QString::fromUtf8(text).replace(secret, QStringLiteral("\\1***")).toUtf8();
}

QByteArray pathOf(const QUrl& url) {
    return url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
}

} // namespace

QByteArray redacted(const QByteArray& text) {
    return withoutPlainSecrets(JsonRedactor(text).run());
}

QByteArray redactedHeader(const QByteArray& name, const QByteArray& value) {
    if (isSecretName(name))
        return value.startsWith("Bearer ") ? "Bearer " + blanked : blanked;
    return withoutPlainSecrets(value);
}

TrafficLog::TrafficLog(const QString& fileName)
    : file_(fileName) {
    if (fileName.isEmpty())
        return;
    const auto mode = QIODevice::WriteOnly | QIODevice::Append;
    if (!file_.open(mode, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        logLine("Could not open the traffic log: " + file_.errorString().toStdString());
}

// The known secrets go first: their own letters may look like the end of a value to the other search.
QString TrafficLog::shown(const QByteArray& text) const {
    return QString::fromUtf8(redacted(secrets_->blanked(QString::fromUtf8(text)).toUtf8()));
}

QString TrafficLog::bodyText(const QByteArray& body) const {
    return shown(body.left(longestBody)) + (body.size() > longestBody ? QStringLiteral(" [...]") : QString());
}

QJsonObject TrafficLog::headerObject(const HttpHeaders& headers) const {
    QJsonObject object;
    for (const auto& [name, value] : headers)
        object.insert(
            QString::fromLatin1(name),
            QString::fromUtf8(redactedHeader(name, secrets_->blanked(QString::fromUtf8(value)).toUtf8())));
    return object;
}

void TrafficLog::write(const Entry& entry) {
    QJsonObject line{
        {QStringLiteral("time"), QDateTime::currentDateTime().toString(Qt::ISODateWithMs)},
        {QStringLiteral("operation"), entry.operation},
        {QStringLiteral("method"), QString::fromLatin1(entry.request.method)},
        {QStringLiteral("path"), shown(pathOf(entry.request.url))},
        {QStringLiteral("status"), entry.answer.status},
        {QStringLiteral("ms"), entry.milliseconds},
        {QStringLiteral("requestHeaders"), headerObject(entry.additionalHeaders + entry.request.headers)},
        {QStringLiteral("requestBody"), bodyText(entry.request.body)},
        {QStringLiteral("answerHeaders"), headerObject(entry.answer.headers)},
        {QStringLiteral("answerBody"), bodyText(entry.answer.body)}};
    if (entry.answer.fault != HttpAnswer::Fault::None) {
        const bool timedOut = entry.answer.fault == HttpAnswer::Fault::TimedOut;
        line.insert(QStringLiteral("fault"),
                    timedOut ? QStringLiteral("timed out") : QStringLiteral("transport"));
    }
    file_.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    file_.flush();
}

} // namespace kavor
