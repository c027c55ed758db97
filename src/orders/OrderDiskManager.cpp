#include "orders/OrderDiskManager.h"

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "base/StopProcess.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace kavor {

namespace {

constexpr std::array<std::string_view, 3> recordNames{"SellingSheetOrder", "SaveBrochuresOrder",
                                                      "SaveTextileOrder"};

// Of a file that was deleted and may still be brought back; as long as that of an order.
constexpr std::string_view asideExtension = ".del";

std::string_view directoryText(OrderDiskManager::DirectoryName directory) {
    return directory == OrderDiskManager::DirectoryName::draft ? "draft_orders" : "outbox_orders";
}

void logWriteFailure(const std::filesystem::path& path, std::string_view reason) {
    logLine("Error occurred when serializing file \"" + path.string() + "\" " + std::string(reason));
}

// The path of an order file, or nothing (logged) for a name that does not name a direct child of the folder.
std::optional<std::filesystem::path> orderPath(const std::filesystem::path& folder,
                                               std::string_view fileName) {
    auto path = atomic_file::child(folder, fileName);
    if (!path)
        logWriteFailure(folder / std::string(fileName), "the name is no file name");
    return path;
}

} // namespace

OrderDiskManager::OrderDiskManager(std::filesystem::path documentsFolder, Opening opening)
    : documents_(std::move(documentsFolder))
    , opening_(opening) {
    if (opening_ == Opening::AsItStands)
        return;
    for (const DirectoryName directory : allCases) {
        for (const std::string_view record : recordNames) {
            const auto path = folder(record, directory);
            if (const auto made = atomic_file::makeFolder(path); !made)
                stopProcess("orders folder: " + made.error().text());
            atomic_file::sweepTemporaries(path);
            sweepSetAside(path);
        }
    }
    atomic_file::sweepTemporaries(documents_);
}

std::filesystem::path OrderDiskManager::folder(std::string_view recordName, DirectoryName directory) const {
    return documents_ / "orders" / directoryText(directory) / recordName;
}

std::string OrderDiskManager::plainName(std::string_view fileName) {
    const auto dot = fileName.rfind('.');
    return std::string(fileName.substr(0, dot));
}

std::string OrderDiskManager::fileName(std::string_view plainName) {
    return std::string(plainName) + "." + std::string(extension);
}

std::optional<std::string> OrderDiskManager::refusalOf(std::string_view name) {
    constexpr std::size_t longest = 255; // bytes, with the extension
    const auto control = [](unsigned char sign) { return sign < 0x20 || sign == 0x7f; };
    if (name.find_first_not_of(' ') == std::string_view::npos)
        return "El nombre no puede estar vacío.";
    if (name.find('/') != std::string_view::npos)
        return "El nombre no puede llevar el signo \"/\".";
    if (name.front() == '.') // "." and "..", and what hides files
        return "El nombre no puede empezar por un punto.";
    if (std::ranges::any_of(name, control))
        return "El nombre no puede llevar saltos de línea, tabuladores ni otros signos invisibles.";
    if (fileName(name).size() > longest)
        return "El nombre es demasiado largo.";
    return std::nullopt;
}

bool OrderDiskManager::isReadable(const Path& folder, std::string_view fileName) {
    const auto path = atomic_file::child(folder, fileName);
    return path && ::access(path->c_str(), R_OK) == 0;
}

std::optional<std::filesystem::path> OrderDiskManager::pathToCreate(const Path& folder,
                                                                    std::string_view fileName) {
    auto path = orderPath(folder, fileName);
    std::error_code error;
    return path && !std::filesystem::exists(*path, error) ? path : std::nullopt;
}

std::optional<std::filesystem::path> OrderDiskManager::pathToUpdate(const Path& folder,
                                                                    std::string_view fileName) {
    auto path = orderPath(folder, fileName);
    std::error_code error;
    return path && std::filesystem::exists(*path, error) ? path : std::nullopt;
}

bool OrderDiskManager::store(const Path& path, const tl::expected<std::string, json::Error>& text,
                             Storing storing) {
    if (!text) {
        logWriteFailure(path, text.error().text());
        return false;
    }
    const auto written =
        storing == Storing::Create ? atomic_file::create(path, *text) : atomic_file::write(path, *text);
    if (!written)
        logWriteFailure(path, written.error().reason);
    return written.has_value();
}

std::optional<std::string> OrderDiskManager::textOf(const Path& folder, std::string_view fileName) {
    const auto path = atomic_file::child(folder, fileName);
    if (!path)
        return std::nullopt;
    auto text = atomic_file::read(*path);
    return text ? std::optional(std::move(*text)) : std::nullopt;
}

void OrderDiskManager::refuse(const Path& path, const std::string& text, const json::Error& fault,
                              bool stops) {
    const std::string sentence = path.string() + ": " + fault.text();
    if (stops && json::isWellFormed(text))
        stopProcess(sentence);
    logLine(sentence);
}

std::optional<OrderDiskManager::Moment> OrderDiskManager::momentOf(const Path& folder,
                                                                   std::string_view fileName) {
    const auto path = atomic_file::child(folder, fileName);
    struct statx status {};
    if (!path || ::statx(AT_FDCWD, path->c_str(), AT_SYMLINK_NOFOLLOW, STATX_MTIME, &status) != 0)
        return std::nullopt;
    return Moment{status.stx_mtime.tv_sec, status.stx_mtime.tv_nsec};
}

std::vector<OrderDiskManager::Listing> OrderDiskManager::listOf(const Path& path,
                                                                DirectoryName directory) const {
    std::error_code error;
    std::filesystem::directory_iterator entries(path, error);
    if (opening_ == Opening::AsItStands && error == std::errc::no_such_file_or_directory)
        return {};
    if (error)
        stopProcess("orders folder " + path.string() + ": " + error.message());
    std::vector<Listing> result;
    for (const auto& entry : entries) {
        const std::string name = entry.path().filename().string();
        if (!name.ends_with("." + std::string(extension)))
            continue;
        struct statx status {};
        if (::statx(AT_FDCWD, entry.path().c_str(), 0, STATX_BTIME | STATX_MTIME, &status) != 0) {
            if (errno == ENOENT && !momentOf(path, name)) // it vanished since it was listed
                continue;
            stopProcess("attributes of " + entry.path().string());
        }
        // Not every file system keeps the moment of birth.
        const auto birth = (status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime : status.stx_mtime;
        result.push_back({name,
                          directory,
                          LocalDateTime::fromTime(birth.tv_sec),
                          LocalDateTime::fromTime(status.stx_mtime.tv_sec),
                          {status.stx_mtime.tv_sec, status.stx_mtime.tv_nsec}});
    }
    return result;
}

std::string OrderDiskManager::asideName(std::string_view fileName) {
    return plainName(fileName) + std::string(asideExtension);
}

bool OrderDiskManager::moveAside(const Path& folder, std::string_view fileName) {
    const auto from = orderPath(folder, fileName);
    const auto to = orderPath(folder, asideName(fileName));
    if (!from || !to)
        return false;
    const auto moved = atomic_file::move(*from, *to);
    if (!moved)
        logLine("Error occurred when deleting file \"" + from->string() + "\" " + moved.error().reason);
    return moved.has_value();
}

bool OrderDiskManager::moveBack(const Path& folder, std::string_view fileName) {
    const auto from = orderPath(folder, asideName(fileName));
    const auto to = orderPath(folder, fileName);
    if (!from || !to || momentOf(folder, fileName))
        return false;
    const auto moved = atomic_file::move(*from, *to);
    if (!moved)
        logLine(moved.error().text());
    return moved.has_value();
}

void OrderDiskManager::sweepSetAside(const Path& folder) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().extension() == asideExtension)
            removeFrom(folder, entry.path().filename().string());
    }
}

bool OrderDiskManager::removeFrom(const Path& folder, std::string_view fileName) {
    const auto path = orderPath(folder, fileName);
    if (!path)
        return false;
    const auto removed = atomic_file::remove(*path);
    if (!removed)
        logLine("Error occurred when deleting file \"" + path->string() + "\" " + removed.error().reason);
    return removed.has_value();
}

} // namespace kavor
