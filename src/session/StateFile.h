#pragma once

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "base/json/Json.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Small documents that live as whole files in the documents folder, named by their key without an extension.
namespace kavor::state_file {

inline constexpr std::string_view loginResult = "ZQLOGINRESULT";
inline constexpr std::string_view applicationInformation = "ZQAPPLICATIONINFORMATION";
inline constexpr std::string_view netPrices = "netPrices";
inline constexpr std::string_view temporalBrochure = "temporalBrochure";
inline constexpr std::string_view draftsWithChanges = "draftsWithChanges";
inline constexpr std::string_view promotionDraft = "promotionDraft";
inline constexpr std::string_view textileDraft = "textileDraft";
// The lock of the client that is running over the folder.
inline constexpr std::string_view clientLock = "kavor.lock";

// Reads a state file; a file that is missing or doesn't decode reads as absent. The log names the place of a
// fault.
template <class T>
std::optional<T> read(const std::filesystem::path& folder, std::string_view key) {
    const auto path = folder / std::string(key);
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return std::nullopt;
    const auto content = atomic_file::read(path);
    if (!content) {
        logLine(content.error().text());
        return std::nullopt;
    }
    auto decoded = json::decode<T>(*content);
    if (!decoded) {
        logLine(std::string(key) + ": " + decoded.error().text());
        return std::nullopt;
    }
    return std::move(*decoded);
}

// Writes a state file with the plain encoder; answers whether it stands on disk.
template <class T>
bool write(const std::filesystem::path& folder, std::string_view key, const T& value) {
    const auto text = json::encode(value);
    if (!text) {
        logLine(std::string(key) + ": " + text.error().text());
        return false;
    }
    const auto written = atomic_file::write(folder / std::string(key), *text);
    if (!written)
        logLine(written.error().text());
    return written.has_value();
}

// Removes a state file; answers whether it is gone.
inline bool remove(const std::filesystem::path& folder, std::string_view key) {
    const auto removed = atomic_file::remove(folder / std::string(key));
    if (!removed)
        logLine("Error occurred when deleting file \"" + std::string(key) + "\" " + removed.error().reason);
    return removed.has_value();
}

} // namespace kavor::state_file
