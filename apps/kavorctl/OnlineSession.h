#pragma once

#include "Progress.h"
#include "RequestFailures.h"
#include "session/LoginResult.h"
#include "shell/services/HeadlessCore.h"

#include <QEventLoop>

#include <optional>

namespace kavor::ctl {

// What a request shows: while it takes long, and in front of the reason when it failed.
struct RequestTexts {
    QString waiting;
    QString failed;
};

// The client's session and its way to the server without a window: the same documents folder, credential and
// engine. Needs a QCoreApplication.
class OnlineSession : public HeadlessCore {
public:
    // Opens the documents folder; a CommandFailure when the property list or the folder can't be had.
    explicit OnlineSession(const CommandContext& context);
    // Keeps the token that a repair brought, for the next process.
    ~OnlineSession();

    // A CommandFailure without a network. To be asked before anything is sent.
    void requireNetwork() const;
    // Takes the stored token; a CommandFailure when nobody is logged in.
    void requireLogin();
    // Asks for the password, logs in and keeps the credential; a CommandFailure with the server's word, or
    // when something did not reach the disk.
    void logIn(const std::string& account);
    // Whether a state file holds exactly this record.
    template <class Record>
    [[nodiscard]] bool isStored(std::string_view stateFile, const Record& record) const {
        const auto wanted = json::encode(record);
        const auto found = atomic_file::read(session.documentsFolder() / std::string(stateFile));
        return wanted && found && *wanted == *found;
    }

    // Runs a request to its end: the record, or a CommandFailure.
    template <class Response, class Start>
    Response await(const RequestTexts& texts, Start start) {
        std::optional<Response> response;
        std::optional<RequestFailure> failure;
        QEventLoop loop;
        std::optional<Progress> progress(std::in_place, err_, texts.waiting);
        start(Completion<Response>(
            &loop,
            [&](const Response& answer) {
                response = answer;
                loop.quit();
            },
            [&](const RequestFailure& reason) {
                failure = reason;
                loop.quit();
            }));
        while (!response && !failure)
            loop.exec();
        progress.reset();
        if (failure)
            throw requestFailure(texts.failed, *failure);
        return std::move(*response);
    }

private:
    void keepCredential(const StoredCredentials& credential);

    std::ostream& err_;
    std::optional<StoredCredentials> credential_; // as the device's store holds it
};

} // namespace kavor::ctl
