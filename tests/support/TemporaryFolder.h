#pragma once

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace kavor {

// Plain reading and writing, apart from the code under test. A file that is not there reads as empty.
inline std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void put(const std::filesystem::path& file, const std::string& content) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

// A folder that goes with the test, also when the test took its rights away.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "kavor-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            std::abort();
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(path_, error);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    [[nodiscard]] std::set<std::string> names() const {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            found.insert(entry.path().filename().string());
        return found;
    }
    [[nodiscard]] std::string content(const std::string& name) const { return contentOf(path_ / name); }
    void put(const std::string& name, const std::string& content) const { kavor::put(path_ / name, content); }

private:
    std::filesystem::path path_;
};

} // namespace kavor
