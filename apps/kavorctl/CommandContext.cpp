#include "CommandContext.h"

namespace kavor::ctl {

std::string readText(const std::filesystem::path& file) {
    auto text = atomic_file::read(file);
    if (!text)
        throw CommandFailure(unreadableInput, text.error().text());
    return std::move(*text);
}

} // namespace kavor::ctl
