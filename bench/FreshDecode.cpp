#include "base/AtomicFile.h"
#include "base/json/Json.h"
#include "catalogue/ApplicationInformation.h"

#include <simdjson.h>
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <string_view>

// fresh_decode parse|decode FILE: one bare parse, or one decode into records, in a process that has done
// nothing before. Prints the milliseconds that it took and how much memory, the document included, it needed
// at its peak.
namespace {

long peakKilobytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char** argv) {
    using Clock = std::chrono::steady_clock;
    if (argc != 3)
        return 64;
    const bool bare = std::string_view(argv[1]) == "parse";
    const long before = peakKilobytes();
    const auto document = kavor::atomic_file::read(argv[2]);
    if (!document)
        return 1;
    const auto begin = Clock::now();
    Clock::time_point end;
    bool good = false;
    if (bare) {
        simdjson::dom::parser parser;
        simdjson::dom::element root;
        good = parser.parse(*document).get(root) == simdjson::SUCCESS;
        end = Clock::now();
    } else {
        const auto catalogue = kavor::json::decode<kavor::ApplicationInformation>(*document);
        good = catalogue.has_value();
        end = Clock::now();
    }
    std::printf("{\"ms\": %.3f, \"peak_bytes\": %ld, \"document_bytes\": %zu}\n",
                std::chrono::duration<double, std::milli>(end - begin).count(),
                (peakKilobytes() - before) * 1024, document->size());
    return good ? 0 : 1;
}
