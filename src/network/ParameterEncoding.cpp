#include "network/ParameterEncoding.h"

namespace kavor {

QByteArray urlEncoded(const Parameters& parameters) {
    QByteArray text;
    for (const auto& [key, value] : parameters) {
        if (!text.isEmpty())
            text += '&';
        text += QUrl::toPercentEncoding(key) + '=' + QUrl::toPercentEncoding(value);
    }
    return text;
}

QUrl withQuery(QUrl url, const Parameters& parameters) {
    if (parameters.empty())
        return url;
    QString query = url.query(QUrl::FullyEncoded);
    if (!query.isEmpty())
        query += QLatin1Char('&');
    url.setQuery(query + QString::fromLatin1(urlEncoded(parameters)));
    return url;
}

QString parameterValue(qint64 value) {
    return QString::number(value);
}

QString parameterValue(bool value) {
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace kavor
