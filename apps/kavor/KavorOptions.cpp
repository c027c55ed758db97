#include "kavor/KavorOptions.h"

#include "base/BundleVersion.h"

#include <QCommandLineParser>
#include <QStandardPaths>

namespace kavor {

namespace {

std::filesystem::path pathOf(const QString& text) {
    return std::filesystem::absolute(text.toStdString());
}

std::filesystem::path standardFolder(QStandardPaths::StandardLocation location) {
    return (QStandardPaths::writableLocation(location) + QStringLiteral("/kavor")).toStdString();
}

std::optional<QSize> sizeFrom(const QString& text) {
    const QStringList parts = text.split(QLatin1Char('x'));
    if (parts.size() != 2)
        return std::nullopt;
    const QSize size(parts[0].toInt(), parts[1].toInt());
    return size.width() > 0 && size.height() > 0 ? std::optional(size) : std::nullopt;
}

} // namespace

tl::expected<KavorOptions, std::string> KavorOptions::read(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOptions({{"configuration", {}, "FILE"},
                       {"documents", {}, "DIR"},
                       {"caches", {}, "DIR"},
                       {"size", {}, "WxH"},
                       {"offline", {}},
                       {{"h", "help"}, {}},
                       {{"v", "version"}, {}}});
    if (!parser.parse(QStringList(QStringLiteral("kavor")) + arguments))
        return tl::unexpected("kavor: " + parser.errorText().toStdString());

    KavorOptions options;
    if (parser.isSet("configuration"))
        options.configuration = pathOf(parser.value("configuration"));
    options.documents = parser.isSet("documents") ? pathOf(parser.value("documents"))
                                                  : standardFolder(QStandardPaths::GenericDataLocation);
    options.caches = parser.isSet("caches") ? pathOf(parser.value("caches"))
                                            : standardFolder(QStandardPaths::GenericCacheLocation);
    options.offline = parser.isSet("offline");
    options.help = parser.isSet("help");
    options.version = parser.isSet("version");
    if (parser.isSet("size")) {
        options.size = sizeFrom(parser.value("size"));
        if (!options.size)
            return tl::unexpected(
                std::string("kavor: --size wants a width and a height, for example 1024x768"));
    }
    for (const QString& argument : parser.positionalArguments()) {
        if (!argument.startsWith(QLatin1String("kavor:")))
            return tl::unexpected("kavor: unexpected argument " + argument.toStdString());
        options.urls.append(argument);
    }
    return options;
}

std::string KavorOptions::helpText() {
    return "kavor [--configuration FILE] [--documents DIR] [--caches DIR] [--size WxH] [--offline] "
           "[kavor://...]\n"
           "\n"
           "  --configuration FILE  property list with the addresses of the server\n"
           "  --documents DIR       folder of the session, drafts and orders\n"
           "  --caches DIR          folder of pictures, fonts and documents that can be fetched again\n"
           "  --size WxH            size of the window\n"
           "  --offline             works as if there were no network\n"
           "  --help, --version\n";
}

std::string KavorOptions::versionText() {
    return "kavor " + bundleVersion() + "." + bundleCompilation() + "\n";
}

} // namespace kavor
