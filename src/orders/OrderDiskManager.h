#pragma once

#include "base/LocalDateTime.h"
#include "base/json/Json.h"

#include <array>
#include <compare>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavor {

// Orders that aren't finished or can't be sent yet, as files in a fixed tree below the documents folder:
// orders/draft_orders|outbox_orders/<record name>/<plain name>.zvo. A file's name is the order's identity on
// the device. "Plain name" means without the extension, "file name" with it; the asymmetry of the operations
// is meant. The record of an order names its folder (folderName) and says whether its files come from this
// application alone (onlyWrittenHere).
class OrderDiskManager {
public:
    enum class DirectoryName { draft, outbox };
    static constexpr std::array allCases{DirectoryName::draft, DirectoryName::outbox};
    static constexpr std::string_view extension = "zvo";

    struct Moment { // since the beginning of 1970
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;
        auto operator<=>(const Moment&) const = default;
    };

    struct Listing {
        std::string fileName; // with the extension
        DirectoryName directory = DirectoryName::draft;
        LocalDateTime creationDate;
        LocalDateTime modificationDate;
        // Of the modification; finer than its date, and the same hour of an autumn night does not come twice.
        Moment modificationMoment;
    };

    // Whether the folders are the application's own, or others' that are only read: nothing changes there,
    // and a missing one holds no files.
    enum class Opening { AsOwner, AsItStands };

    // As the owner, makes the tree and sweeps what a dead writer left; the process stops when the tree can't
    // be made.
    explicit OrderDiskManager(std::filesystem::path documentsFolder, Opening opening = Opening::AsOwner);

    template <class Order>
    [[nodiscard]] bool exists(std::string_view plainName, DirectoryName directory) const {
        return isReadable(folder(Order::folderName, directory), fileName(plainName));
    }
    // False, and nothing written, when the file exists, or when the order can't be encoded or written
    // (logged).
    template <class Order>
    bool create(const Order& order, DirectoryName directory, std::string_view plainName) const {
        const auto path = pathToCreate(folder(Order::folderName, directory), fileName(plainName));
        return path && store(*path, json::encodePretty(order), Storing::Create);
    }
    // False, and nothing written, when the file doesn't exist; else like create.
    template <class Order>
    bool update(const Order& order, std::string_view fileName, DirectoryName directory) const {
        const auto path = pathToUpdate(folder(Order::folderName, directory), fileName);
        return path && store(*path, json::encodePretty(order), Storing::Update);
    }
    // Nothing when the file is missing, unreadable or undecodable (logged). An undecodable file of a record
    // that only the application writes stops the process when it is well-formed JSON.
    template <class Order>
    [[nodiscard]] std::optional<Order> retrieve(std::string_view fileName, DirectoryName directory) const {
        const auto path = folder(Order::folderName, directory);
        const auto text = textOf(path, fileName);
        if (!text)
            return std::nullopt;
        auto order = json::decode<Order>(*text);
        if (order)
            return std::move(*order);
        refuse(path / std::string(fileName), *text, order.error(), Order::onlyWrittenHere);
        return std::nullopt;
    }
    // When a file that stands there was written, whether it can be read or not; nothing when there is none.
    template <class Order>
    [[nodiscard]] std::optional<Moment> moment(std::string_view fileName, DirectoryName directory) const {
        return momentOf(folder(Order::folderName, directory), fileName);
    }
    // The files with the extension, in the order of the file system, without those that vanish meanwhile; the
    // process stops when the folder can't be read.
    template <class Order>
    [[nodiscard]] std::vector<Listing> list(DirectoryName directory) const {
        return listOf(folder(Order::folderName, directory), directory);
    }
    // Removes a file; a failure is logged. Answers whether the file is gone. The operation "delete".
    template <class Order>
    bool remove(std::string_view fileName, DirectoryName directory) const {
        return removeFrom(folder(Order::folderName, directory), fileName);
    }

    // Takes a file out of its folder's list so that it can be brought back as it was; the next start of an
    // owner removes it for good. False when that could not be done, and the file stays.
    template <class Order>
    bool setAside(std::string_view fileName, DirectoryName directory) const {
        return moveAside(folder(Order::folderName, directory), fileName);
    }
    // False when nothing was set aside under the name, or when it is taken by now.
    template <class Order>
    bool bringBack(std::string_view fileName, DirectoryName directory) const {
        return moveBack(folder(Order::folderName, directory), fileName);
    }
    template <class Order>
    bool removeSetAside(std::string_view fileName, DirectoryName directory) const {
        return removeFrom(folder(Order::folderName, directory), asideName(fileName));
    }

    // The plain name of a file name.
    static std::string plainName(std::string_view fileName);
    static std::string fileName(std::string_view plainName);
    // Why a plain name can't become a file, as a sentence for the user; nothing for a name that can.
    static std::optional<std::string> refusalOf(std::string_view plainName);

private:
    using Path = std::filesystem::path;
    enum class Storing { Create, Update };

    [[nodiscard]] Path folder(std::string_view recordName, DirectoryName directory) const;
    static bool isReadable(const Path& folder, std::string_view fileName);
    static std::optional<Path> pathToCreate(const Path& folder, std::string_view fileName);
    static std::optional<Path> pathToUpdate(const Path& folder, std::string_view fileName);
    static bool store(const Path& path, const tl::expected<std::string, json::Error>& text, Storing storing);
    static std::optional<std::string> textOf(const Path& folder, std::string_view fileName);
    static void refuse(const Path& path, const std::string& text, const json::Error& fault, bool stops);
    static std::optional<Moment> momentOf(const Path& folder, std::string_view fileName);
    [[nodiscard]] std::vector<Listing> listOf(const Path& folder, DirectoryName directory) const;
    static bool removeFrom(const Path& folder, std::string_view fileName);
    static std::string asideName(std::string_view fileName);
    static bool moveAside(const Path& folder, std::string_view fileName);
    static bool moveBack(const Path& folder, std::string_view fileName);
    static void sweepSetAside(const Path& folder);

    std::filesystem::path documents_;
    Opening opening_;
};

} // namespace kavor
