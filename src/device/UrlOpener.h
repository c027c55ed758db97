#pragma once

#include <QString>

namespace kavor {

// Opens an address outside the application.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;
    // False when the text is no web, mail or telephone address or nothing on the device opens it.
    virtual bool openExternally(const QString& url) = 0;
};

// The desktop's choice of program.
class SystemUrlOpener : public UrlOpener {
public:
    bool openExternally(const QString& url) override;
};

} // namespace kavor
