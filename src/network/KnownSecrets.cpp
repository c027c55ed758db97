#include "network/KnownSecrets.h"

#include <QHash>
#include <QStringView>
#include <QVarLengthArray>

#include <algorithm>
#include <optional>
#include <utility>

namespace kavor {

namespace {

using Positions = QVarLengthArray<qsizetype, 4>;

constexpr char16_t replacement = 0xFFFD;

bool startsWith(QStringView text, qsizetype at, QStringView start) {
    return text.mid(at).startsWith(start, Qt::CaseInsensitive);
}

// The number that so many hexadecimal digits form.
std::optional<char32_t> hexAt(QStringView text, qsizetype at, qsizetype digits) {
    if (at + digits > text.size())
        return std::nullopt;
    bool good = false;
    const char32_t value = text.mid(at, digits).toUInt(&good, 16);
    return good ? std::optional(value) : std::nullopt;
}

// One past the backslash that stands here, plain or percent-encoded; the place itself without one.
qsizetype pastBackslash(QStringView text, qsizetype at) {
    if (at < text.size() && text[at] == QLatin1Char('\\'))
        return at + 1;
    return startsWith(text, at, u"%5C") ? at + 3 : at;
}

qsizetype pastBackslashes(QStringView text, qsizetype at) {
    for (qsizetype next = pastBackslash(text, at); next != at; next = pastBackslash(text, at))
        at = next;
    return at;
}

// The letter itself, "+" for a blank, or the mark that stands for letters that could not be read.
void plainForm(QStringView text, qsizetype at, char32_t letter, Positions& ends) {
    const auto units = QChar::fromUcs4(letter);
    const QChar standsForIt = letter == U' ' ? QLatin1Char('+') : QChar(replacement);
    if (text.mid(at).startsWith(QStringView(units)))
        ends.append(at + QStringView(units).size());
    else if ((letter == U' ' || letter > 0x7F) && at < text.size() && text[at] == standsForIt)
        ends.append(at + 1);
}

// "%25" and "%2525" are a percent sign, the latter when the whole was encoded twice.
void percentSign(QStringView text, qsizetype at, Positions& ends) {
    if (at >= text.size() || text[at] != QLatin1Char('%'))
        return;
    for (qsizetype next = at + 1; startsWith(text, next, u"25"); next += 2)
        ends.append(next + 2);
}

// "%C3%B1", also encoded more than once, also in Latin-1.
void percentForm(QStringView text, qsizetype at, char32_t letter, Positions& ends) {
    const auto matches = [&](const QByteArray& bytes) {
        qsizetype next = at;
        for (const char byte : bytes) {
            if (next >= text.size() || text[next] != QLatin1Char('%'))
                return;
            for (++next; startsWith(text, next, u"25");)
                next += 2;
            if (hexAt(text, next, 2) != char32_t(static_cast<unsigned char>(byte)))
                return;
            next += 2;
        }
        ends.append(next);
    };
    if (letter == U'%') {
        percentSign(text, at, ends);
        return;
    }
    matches(QString::fromUcs4(&letter, 1).toUtf8());
    if (letter > 0x7F && letter <= 0xFF)
        matches(QByteArray(1, char(letter)));
}

// What stands behind backslashes: "\"", "\/", "\u00f1", "\n"; in a text within a text there are more of them.
void escapedForm(QStringView text, qsizetype at, char32_t letter, Positions& ends) {
    qsizetype next = pastBackslashes(text, at);
    if (next == at)
        return;
    for (qsizetype end = at; letter == U'\\' && end != next;) {
        end = pastBackslash(text, end);
        ends.append(end);
    }
    plainForm(text, next, letter, ends);
    percentForm(text, next, letter, ends);
    static const QHash<char32_t, QChar> named{{U'\n', u'n'}, {U'\t', u't'}, {U'\r', u'r'}};
    if (named.contains(letter) && next < text.size() && text[next] == named[letter])
        ends.append(next + 1);
    const auto units = QChar::fromUcs4(letter);
    for (const QChar unit : QStringView(units)) {
        next = pastBackslashes(text, next);
        if (!startsWith(text, next, u"u") || hexAt(text, next + 1, 4) != char32_t(unit.unicode()))
            return;
        next += 5;
    }
    ends.append(next);
}

// "&amp;", "&#39;", "&#x27;", also with the mark itself written as "&amp;".
void htmlForm(QStringView text, qsizetype at, char32_t letter, Positions& ends) {
    static const QHash<char32_t, QString> names{
        {U'&', "amp"},    {U'<', "lt"},     {U'>', "gt"},     {U'"', "quot"},   {U'\'', "apos"},
        {U'á', "aacute"}, {U'é', "eacute"}, {U'í', "iacute"}, {U'ó', "oacute"}, {U'ú', "uacute"},
        {U'ü', "uuml"},   {U'ñ', "ntilde"}, {U'Á', "Aacute"}, {U'É', "Eacute"}, {U'Í', "Iacute"},
        {U'Ó', "Oacute"}, {U'Ú', "Uacute"}, {U'Ü', "Uuml"},   {U'Ñ', "Ntilde"}, {U'ç', "ccedil"},
        {U'¿', "iquest"}, {U'¡', "iexcl"},  {U'º', "ordm"},   {U'ª', "ordf"},   {U'€', "euro"},
        {U'·', "middot"}, {U' ', "nbsp"}};
    if (at >= text.size() || text[at] != QLatin1Char('&'))
        return;
    for (qsizetype begin = at + 1;; begin += 4) {
        const qsizetype end = text.indexOf(QLatin1Char(';'), begin);
        constexpr qsizetype longestName = 12;
        if (end < 0 || end - begin > longestName)
            return;
        const QStringView name = text.mid(begin, end - begin);
        bool good = false;
        const char32_t number = startsWith(name, 0, u"#x") ? name.mid(2).toUInt(&good, 16)
                                : name.startsWith(u'#')    ? name.mid(1).toUInt(&good, 10)
                                                           : 0;
        if ((good && number == letter) || (names.contains(letter) && names[letter] == name))
            ends.append(end + 1);
        if (name != u"amp")
            return;
    }
}

bool mayBegin(QChar c, char32_t letter) {
    return c == QChar(char16_t(letter)) || c == u'%' || c == u'\\' || c == u'&' || c == u'+' ||
           c == replacement || (letter > 0xFFFF && c.isHighSurrogate());
}

// Whether the text ends here, or soon and maybe inside of an escape.
bool breaksOff(QStringView text, qsizetype at) {
    constexpr qsizetype longestEscape = 12;
    return at == text.size() ||
           (text.size() - at < longestEscape && (text[at] == u'%' || text[at] == u'\\' || text[at] == u'&'));
}

// Where a secret that begins here ends; nothing when none does.
std::optional<qsizetype> endOf(const QList<char32_t>& secret, QStringView text, qsizetype at) {
    Positions reached{at};
    for (qsizetype i = 0; i < secret.size(); ++i) {
        Positions next;
        for (const qsizetype from : reached) {
            plainForm(text, from, secret[i], next);
            percentForm(text, from, secret[i], next);
            escapedForm(text, from, secret[i], next);
            htmlForm(text, from, secret[i], next);
        }
        if (next.isEmpty()) {
            const bool isCut = i >= KnownSecrets::shortest &&
                               std::ranges::any_of(reached, [&](auto from) { return breaksOff(text, from); });
            return isCut ? std::optional(text.size()) : std::nullopt;
        }
        reached = next;
    }
    return *std::ranges::max_element(reached);
}

} // namespace

void KnownSecrets::add(const QString& secret) {
    const QList<uint> letters = secret.toUcs4();
    const std::lock_guard lock(mutex_);
    if (letters.size() >= shortest)
        secrets_.insert(QList<char32_t>(letters.begin(), letters.end()));
}

QString KnownSecrets::blanked(const QString& text) const {
    const std::lock_guard lock(mutex_);
    QString shown = text;
    for (const QList<char32_t>& secret : secrets_) {
        const QString whole = std::exchange(shown, QString());
        shown.reserve(whole.size());
        for (qsizetype at = 0; at < whole.size();) {
            const auto end = mayBegin(whole[at], secret.first()) ? endOf(secret, whole, at) : std::nullopt;
            if (end)
                shown += QLatin1String("***");
            else
                shown += whole[at];
            at = end.value_or(at + 1);
        }
    }
    return shown;
}

} // namespace kavor
