#pragma once

#include <QSize>
#include <QStringList>

#include <filesystem>
#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace kavor {

// How the client is started. Folders that are not given are the platform's own.
struct KavorOptions {
    std::optional<std::filesystem::path> configuration; // a property list; the embedded one without it
    std::filesystem::path documents;
    std::filesystem::path caches;
    std::optional<QSize> size;
    bool offline = false;
    QStringList urls; // "kavor://...", opened after the launch
    bool help = false;
    bool version = false;

    // Reads the command line, without the program's name. The error is one line.
    static tl::expected<KavorOptions, std::string> read(const QStringList& arguments);
    static std::string helpText();
    static std::string versionText();
};

} // namespace kavor
