#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <map>

namespace kavor {

// The parameters of an operation, written in ascending order of their keys.
using Parameters = std::map<QString, QString>;

// "key=value&key=value" in UTF-8; everything but letters, digits, "-", ".", "_" and "~" is percent-encoded,
// blanks included.
QByteArray urlEncoded(const Parameters& parameters);

// An address with the parameters added to its query.
QUrl withQuery(QUrl url, const Parameters& parameters);

// How integers and booleans are written in a parameter: decimal, "1" and "0".
QString parameterValue(qint64 value);
QString parameterValue(bool value);

} // namespace kavor
