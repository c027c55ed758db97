#include "CommandContext.h"

#include "base/json/Table.h"

#include <QString>
#include <QUtf8StringView>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

namespace kavor::ctl {

namespace {

std::string readStream(const std::filesystem::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    // An empty stream sets the fail bit of its reader, so that only the source's own state tells.
    if (stream)
        text << stream.rdbuf();
    if (!stream.is_open() || stream.bad())
        throw CommandFailure(unreadableInput, file.string() + ": " + std::strerror(errno));
    return std::move(text).str();
}

} // namespace

std::string readText(const std::filesystem::path& file) {
    std::error_code error;
    const auto kind = std::filesystem::status(file, error).type();
    if (kind == std::filesystem::file_type::fifo || kind == std::filesystem::file_type::character)
        return readStream(file);
    auto text = atomic_file::read(file);
    if (!text)
        throw CommandFailure(unreadableInput, text.error().text());
    return std::move(*text);
}

std::string utf8Text(const std::string& bytes) {
    return QUtf8StringView(bytes).isValidUtf8() ? bytes : QString::fromUtf8(bytes).toStdString();
}

void printMessages(CommandContext& context, const std::vector<std::string>& messages) {
    if (context.json) {
        context.out << listText(messages);
    } else {
        for (const std::string& message : messages)
            context.out << message << '\n';
    }
    context.status = messages.empty() ? fine : orderHasMessages;
}

std::string listText(const std::vector<std::string>& texts) {
    return prettyText(texts);
}

} // namespace kavor::ctl
