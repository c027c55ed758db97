#pragma once

#include "base/AtomicFile.h"
#include "base/BackgroundFileWriter.h"
#include "base/Log.h"
#include "base/json/Json.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kavor {

// The unfinished work of a section: what its user wrote and has not sent, kept as one state file of the
// documents folder so that it comes back after anything. A section derives from it and says what its record
// is. Writing and removing happen in the background in their order; reading waits for them. Opening the
// section takes the copy away until the next write; so that a process that dies in between loses nothing, the
// copy lives on beside it as "name.recovery" until the next write stands on disk, or the work is reset or
// sent.
//
// A section may know several kinds of work, of which each has unfinished work of its own. A copy of another
// kind than the one opened is set aside as "name.kind" and comes back when its own kind is opened. Where one
// of that kind lies aside already, the further one is "name.kind-2" and comes back first. What can't be read
// is set aside as "name.unreadable" and stays. Setting aside renames, so a copy is in one place at any
// moment. Without a documents folder nothing is read or written. Main thread only.
template <class Record, class Draft = Record>
class UnfinishedWork {
public:
    virtual ~UnfinishedWork() = default;
    UnfinishedWork(const UnfinishedWork&) = delete;
    UnfinishedWork& operator=(const UnfinishedWork&) = delete;

    // Writes the copy of the draft. Returns at once. What is not the current draft, or has nothing to keep,
    // is not written.
    void write(const Draft& draft);
    // Removes the copy and the recovery copy: the work was reset or sent. What was set aside stays.
    void removeAll();
    // What the user is to be told since the last bringBack, once: that work came back.
    [[nodiscard]] std::string takeWord() { return std::exchange(word_, {}); }
    // Waits until what was asked for stands on disk.
    void flush() { BackgroundFileWriter::shared().flush(); }

protected:
    // For a section whose work is all of one kind.
    static constexpr const char* onlyKind = "work";

    explicit UnfinishedWork(std::string_view name)
        : name_(name) {}

    // The draft in work; none that any more is written.
    [[nodiscard]] virtual std::shared_ptr<const Draft> current() const = 0;
    // What is kept of the draft; nothing for one that was sent.
    [[nodiscard]] virtual std::optional<Record> recordOf(const Draft& draft) const = 0;
    // The kind of work that a record is, as it stands in the name of a file set aside ("type1").
    [[nodiscard]] virtual std::string kindOf(const Record& /*record*/) const { return onlyKind; }
    // Why a record that was read can't be loaded; empty when it can.
    [[nodiscard]] virtual std::string faultOf(const Record& /*record*/) const { return {}; }
    // The sentence that tells the user that work came back.
    [[nodiscard]] virtual std::string broughtBack() const = 0;

    // The work of this kind: the copy, or the recovery copy when there is none, or what was set aside last
    // (where that is wanted). Afterwards there is no copy.
    std::optional<Record> take(const std::string& kind, bool fromAside = true);
    // Takes the work of this kind and hands it to `load`, which answers whether the user entered any of it.
    // Answers whether there was work; takeWord says so to the user.
    bool bringBack(const std::string& kind, const std::function<bool(const Record&)>& load,
                   bool fromAside = true);
    // Removes the copy of whatever work of this kind was there because other work is loaded; a copy of
    // another kind is set aside. The recovery copy stays when it is the one being loaded.
    void removeForLoading(const std::string& kind);
    // Changes the copies of this kind wherever they lie; `change` answers whether it changed one.
    void amend(const std::string& kind, const std::function<bool(Record&)>& change);

private:
    // What a place holds.
    struct Found {
        std::optional<Record> record;
        std::string kind; // of the record
        bool unreadable = false;
        [[nodiscard]] bool isOf(const std::string& wanted) const { return record && kind == wanted; }
        [[nodiscard]] bool isForeignTo(const std::string& wanted) const {
            return unreadable || (record && kind != wanted);
        }
    };

    static const std::filesystem::path& folder() { return AppSingleton::shared().documentsFolder(); }
    static bool exists(const std::string& name);
    static bool move(const std::string& from, const std::string& to);
    static int countOf(const std::string& name);
    static std::string numbered(const std::string& name, int number) {
        return number == 1 ? name : name + "-" + std::to_string(number);
    }
    [[nodiscard]] std::string recoveryName() const { return name_ + ".recovery"; }
    [[nodiscard]] std::string asideName(const std::string& kind) const { return name_ + "." + kind; }
    [[nodiscard]] std::string unreadableName() const { return name_ + ".unreadable"; }
    [[nodiscard]] Found look(const std::string& name) const;
    std::optional<Record> clearPlaces(const std::string& kind);
    bool setAside(const std::string& name, const Found& found);
    std::optional<Record> takeSetAside(const std::string& kind);

    std::string name_;
    std::string word_;
    bool taken_ = false;    // the recovery copy is the one that was opened
    bool occupied_ = false; // work that could not be moved is in the way
};

template <class Record, class Draft>
bool UnfinishedWork<Record, Draft>::exists(const std::string& name) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(folder() / name, error));
}

template <class Record, class Draft>
bool UnfinishedWork<Record, Draft>::move(const std::string& from, const std::string& to) {
    const auto moved = atomic_file::move(folder() / from, folder() / to);
    if (!moved)
        logLine(moved.error().text());
    return moved.has_value();
}

// How many of this name lie there without a gap.
template <class Record, class Draft>
int UnfinishedWork<Record, Draft>::countOf(const std::string& name) {
    int count = 0;
    while (exists(numbered(name, count + 1)))
        ++count;
    return count;
}

template <class Record, class Draft>
auto UnfinishedWork<Record, Draft>::look(const std::string& name) const -> Found {
    if (!exists(name))
        return {};
    auto record = state_file::read<Record>(folder(), name);
    if (const auto fault = record ? faultOf(*record) : std::string(); !fault.empty()) {
        logLine(name + ": " + fault);
        record.reset();
    }
    const bool unreadable = !record.has_value();
    auto kind = record ? kindOf(*record) : std::string();
    return {std::move(record), std::move(kind), unreadable};
}

template <class Record, class Draft>
bool UnfinishedWork<Record, Draft>::setAside(const std::string& name, const Found& found) {
    const std::string to = found.record ? asideName(found.kind) : unreadableName();
    return move(name, numbered(to, countOf(to) + 1));
}

// Sets aside what is of another kind or can't be read, and answers the rest: the copy, or the recovery copy
// when there is none. A recovery copy beside a copy of its kind is an older state of the same work.
template <class Record, class Draft>
std::optional<Record> UnfinishedWork<Record, Draft>::clearPlaces(const std::string& kind) {
    flush();
    Found copy = look(name_);
    Found recovery = look(recoveryName());
    if (recovery.record && copy.isOf(recovery.kind)) {
        state_file::remove(folder(), recoveryName());
        recovery = {};
    }
    const bool recoveryStays = !recovery.isForeignTo(kind) || setAside(recoveryName(), recovery);
    const bool copyStays = !copy.isForeignTo(kind) || setAside(name_, copy);
    occupied_ = !recoveryStays || !copyStays;
    if (!copy.isOf(kind))
        return recovery.isOf(kind) ? std::move(recovery.record) : std::nullopt;
    if (!occupied_)
        move(name_, recoveryName());
    return std::move(copy.record);
}

template <class Record, class Draft>
std::optional<Record> UnfinishedWork<Record, Draft>::takeSetAside(const std::string& kind) {
    const std::string name = asideName(kind);
    for (int last = countOf(name); last > 0; --last) {
        const std::string file = numbered(name, last);
        Found found = look(file);
        if (!found.isOf(kind)) {
            setAside(file, found);
            continue;
        }
        occupied_ = occupied_ || !move(file, recoveryName());
        return std::move(found.record);
    }
    return std::nullopt;
}

template <class Record, class Draft>
std::optional<Record> UnfinishedWork<Record, Draft>::take(const std::string& kind, bool fromAside) {
    if (folder().empty())
        return std::nullopt;
    auto record = clearPlaces(kind);
    if (!record && fromAside)
        record = takeSetAside(kind);
    taken_ = record.has_value();
    return record;
}

template <class Record, class Draft>
bool UnfinishedWork<Record, Draft>::bringBack(const std::string& kind,
                                              const std::function<bool(const Record&)>& load,
                                              bool fromAside) {
    word_.clear();
    const auto record = take(kind, fromAside);
    if (record && load(*record))
        word_ = broughtBack();
    return record.has_value();
}

template <class Record, class Draft>
void UnfinishedWork<Record, Draft>::write(const Draft& draft) {
    if (folder().empty() || current().get() != &draft)
        return;
    const auto record = recordOf(draft);
    if (!record)
        return;
    const auto text = json::encode(*record);
    if (!text) {
        logLine(name_ + ": " + text.error().text());
        return;
    }
    if (occupied_)
        clearPlaces(kindOf(*record));
    if (occupied_)
        return; // better an unsaved change than work that is overwritten
    taken_ = false;
    BackgroundFileWriter::shared().write(folder() / name_, *text, {folder() / recoveryName()});
}

template <class Record, class Draft>
void UnfinishedWork<Record, Draft>::removeAll() {
    taken_ = false;
    if (folder().empty())
        return;
    if (occupied_) { // nothing of this work was written
        logLine(name_ + ": unfinished work could not be moved, so nothing is removed");
        return;
    }
    for (const auto& name : {name_, recoveryName()})
        BackgroundFileWriter::shared().remove(folder() / name);
}

template <class Record, class Draft>
void UnfinishedWork<Record, Draft>::removeForLoading(const std::string& kind) {
    if (folder().empty())
        return;
    if (!std::exchange(taken_, false) && clearPlaces(kind))
        removeAll();
}

template <class Record, class Draft>
void UnfinishedWork<Record, Draft>::amend(const std::string& kind,
                                          const std::function<bool(Record&)>& change) {
    if (folder().empty())
        return;
    flush();
    std::vector<std::string> names{name_, recoveryName()};
    const std::string aside = asideName(kind);
    for (int i = 1, count = countOf(aside); i <= count; ++i)
        names.push_back(numbered(aside, i));
    for (const std::string& name : names) {
        Found found = look(name);
        if (!found.isOf(kind) || !change(*found.record))
            continue;
        if (const auto text = json::encode(*found.record))
            BackgroundFileWriter::shared().write(folder() / name, *text);
    }
}

} // namespace kavor
