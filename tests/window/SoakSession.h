#pragma once

#include <QString>

namespace kavor {

// What one process of the soak is told to do over the common folder.
struct SoakTask {
    QString folder;        // documents and caches of the client lie in it
    QString configuration; // of the server that runs beside
    QString account;
    QString password;
    int start = -1;    // the number of this start, 0 logs in
    int refreshes = 0; // or: refresh so many times
};

// Plays one life of the client in the window: 0 when all went well, 1 with a line on stderr.
int playSoakSession(const SoakTask& task);

} // namespace kavor
