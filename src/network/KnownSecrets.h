#pragma once

#include <QList>
#include <QString>

#include <mutex>
#include <set>

namespace kavor {

// Passwords and tokens that are known to the process, and where they stand in a text: plain, percent-encoded,
// with "+" for a blank, with the escapes of JSON, once or nested, or with those of HTML, each letter in a
// form of its own. Safe from any thread.
class KnownSecrets {
public:
    // What is shorter would stand in any text by chance, so it is not looked for.
    static constexpr qsizetype shortest = 4;

    void add(const QString& secret);
    // The text with "***" in the place of each secret. Also the beginning of one at the end of the text goes,
    // when it is no shorter than the shortest.
    [[nodiscard]] QString blanked(const QString& text) const;

private:
    // The longest first: one may begin with another.
    struct LongerFirst {
        bool operator()(const QList<char32_t>& a, const QList<char32_t>& b) const {
            return a.size() != b.size() ? a.size() > b.size() : a < b;
        }
    };
    mutable std::mutex mutex_;
    std::set<QList<char32_t>, LongerFirst> secrets_;
};

} // namespace kavor
