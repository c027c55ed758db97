#pragma once

#include "catalogue/Textile.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace kavor {

class FontRegistry;
class PlainDownloader;

// Fetches the fonts of the textile catalogue that are not on the device and registers all of them. A font
// that fails costs a log line and is tried again at the next run.
class FontUpdater : public QObject {
    Q_OBJECT
public:
    using Typographies = std::vector<Textile::Typography>;

    // The fonts live in the folder "ApplicationFonts" under the caches folder; an empty path means that the
    // device has no caches folder. The collaborators outlive the updater.
    FontUpdater(std::filesystem::path cachesFolder, PlainDownloader& downloader, FontRegistry& registry,
                QObject* parent = nullptr);

    // Runs once over the list; finished runs when all is registered, and not at all without a caches folder.
    // Stops the process when the fonts' folder cannot be made.
    void update(Typographies typographies, std::function<void()> finished);

    // Registers those of the list that are on the device, and asks nobody for the others: after a start
    // without a network.
    void registerStored(Typographies typographies);

    [[nodiscard]] std::filesystem::path folder() const;

private:
    struct Run;

    void download(const std::shared_ptr<Run>& run, const Textile::Typography& typography,
                  const std::filesystem::path& file);
    void leave(const std::shared_ptr<Run>& run);
    void registerNext(const std::shared_ptr<Run>& run);

    std::filesystem::path cachesFolder_;
    PlainDownloader& downloader_;
    FontRegistry& registry_;
};

} // namespace kavor
