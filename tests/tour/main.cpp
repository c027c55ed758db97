#include "kavor/KavorApplication.h"
#include "robust/OwnMounts.h"
#include "tour/KilledDraft.h"
#include "tour/Tour.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

// Asked of the plain arguments: how the window draws is settled before there is an application object.
bool isAsked(const char* option, int argc, char* argv[]) {
    return std::any_of(argv + 1, argv + argc,
                       [&](const char* given) { return std::strcmp(given, option) == 0; });
}

kavor::Tour::Story storyOf(const QCommandLineParser& parser) {
    using Story = kavor::Tour::Story;
    constexpr std::array stories = {std::pair("every-kind", Story::EveryKind),
                                    std::pair("orders", Story::Orders),
                                    std::pair("events", Story::Events),
                                    std::pair("textile", Story::Textile),
                                    std::pair("textile-again", Story::TextileAgain),
                                    std::pair("sheets", Story::Sheets),
                                    std::pair("sheets-again", Story::SheetsAgain)};
    for (const auto& [option, story] : stories) {
        if (parser.isSet(QLatin1String(option)))
            return story;
    }
    const QString send = parser.value("send");
    return send == "dies"        ? Story::SendAndDie
           : send == "read-only" ? Story::ReadOnlyOutbox
           : send == "again"     ? Story::SendAgain
                                 : Story::MainJob;
}

} // namespace

// kavor-tour DIR                       the main job by itself; pictures, the order and the PDF go to DIR
//   --documents DIR                    the client's documents folder (default: a temporary one)
//   --kill-after STEP                  the process kills itself after a step
//   --every-kind                       an order of every kind of brochure with all its
//                                      steps instead; their bodies and PDFs go to DIR
//   --orders                           the corners of the list of orders instead
//   --events                           parties instead
//   --textile                          an order of clothing, with and without a network, instead
//   --sheets                           selling sheets instead; the PDF of one goes to DIR
//   --textile-again                    a new start after that one died over a cart: it comes back
//   --sheets-again                     a new start after that one died over a sheet: it comes back
//   --send STORY                       an order that breaks off: dies, read-only or again, one after the
//   other
//   --window                           in a real window that a thread of its own draws, as users have it
//   --check-killed                     a new start after that: is the draft still there?
int main(int argc, char* argv[]) {
    const bool realWindow = isAsked("--window", argc, argv);
    if (isAsked("read-only", argc, argv) && !kavor::robust::takeOwnMounts()) {
        std::fputs("this system lets nobody mount\n", stderr);
        return 77;
    }
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!realWindow)
        qputenv("QT_QUICK_BACKEND", "software");
    qputenv("KAVOR_NO_ANIMATION", "1");
    qputenv("KAVOR_KEYCHAIN", "file");
    // Where the device is, which some systems tell by this bus, is another place every day.
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
    kavor::KavorApplication::prepareProcess();
    QGuiApplication application(argc, argv);

    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("DIR"), QStringLiteral("where pictures, order and PDF go"));
    parser.addOptions({{"documents", {}, "DIR"},
                       {"kill-after", {}, "STEP"},
                       {"check-killed", {}},
                       {"no-pictures", {}},
                       {"window", {}},
                       {"every-kind", {}},
                       {"orders", {}},
                       {"events", {}},
                       {"textile", {}},
                       {"sheets", {}},
                       {"sheets-again", {}},
                       {"textile-again", {}},
                       {"send", {}, "STORY"}});
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        std::fputs("kavor-tour DIR\n", stderr);
        return 64;
    }
    const QTemporaryDir temporary;
    kavor::Tour::Options options;
    options.folder = parser.positionalArguments().constFirst();
    options.documents = parser.isSet("documents") ? parser.value("documents")
                                                  : temporary.filePath(QStringLiteral("documents"));
    if (parser.isSet("check-killed"))
        return kavor::checkKilledDraft(options.folder, options.documents);
    options.killAfterStep = parser.value("kill-after");
    options.story = storyOf(parser);
    options.realWindow = realWindow;
    options.pictures = !parser.isSet("no-pictures");
    const int status = kavor::Tour(options).run();
    if (status == 0)
        std::printf("Las imágenes, el pedido y el PDF están en %s\n", qPrintable(options.folder));
    return status;
}
