#pragma once

#include "catalogue/Catalogue.h"
#include "session/LoginResult.h"

#include <QThreadPool>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace kavor {

class AppSingleton;

// The session's two state files. They are read and written in one worker thread, one after the other, so a
// later write always wins and a reading sees every write before it. Main thread only.
class SessionStore {
public:
    explicit SessionStore(AppSingleton& session);
    // Waits until everything is written.
    ~SessionStore();
    SessionStore(const SessionStore&) = delete;
    SessionStore& operator=(const SessionStore&) = delete;

    // Begins to read both files, for a restoreSession soon after.
    void preload();
    // Replaces the session's login result and catalogue by what the files hold, also by nothing. A file that
    // has not changed since it was last read or written is not decoded again. Answers whether both are
    // present now.
    bool restoreSession();
    // Writes both files and waits. The process stops when the catalogue or the login result is absent.
    void storeSession();
    // Writes what is present as it is now; returns at once.
    void storeInBackground();
    // Writes the catalogue as it is now, after each change of the session's catalogue, so that a brand added
    // by hand outlives the process even when that ends without warning, and one that was removed does not
    // come back; returns at once. The former catalogue is let go in the worker too.
    void storeCatalogueInBackground(std::shared_ptr<const Catalogue> former);
    // Waits for all that was begun.
    void flush();

private:
    // Says whether a file is still the one that was read or written.
    struct Identity {
        quint64 device = 0;
        quint64 inode = 0; // 0 for a file that is not there
        qint64 size = 0;
        qint64 changedSeconds = 0;
        qint64 changedNanoseconds = 0;
        bool operator==(const Identity&) const = default;
        static Identity of(const std::filesystem::path& file);
    };
    // What a file held when it had this identity; nothing for a file that is missing or broken.
    template <class Value>
    struct Known {
        Identity identity;
        Value value;
    };
    struct Session {
        std::optional<LoginResult> loginResult;
        std::shared_ptr<const Catalogue> catalogue;
    };

    [[nodiscard]] Session load();
    void writeCatalogue(const std::shared_ptr<const Catalogue>& catalogue);
    void writeLoginResult(const LoginResult& loginResult);
    void run(std::function<void()> work);

    AppSingleton& session_;
    std::filesystem::path folder_;
    QThreadPool worker_;
    // Both are touched in the worker alone.
    std::optional<Known<std::optional<LoginResult>>> loginResult_;
    std::optional<Known<std::shared_ptr<const Catalogue>>> catalogue_;
};

} // namespace kavor
