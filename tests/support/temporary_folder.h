#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace support {

/// A folder of a test's own, gone with this object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "test-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        path = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Writes a file of the folder and returns its place.
    std::filesystem::path write(const std::string& file, const std::string& content) const {
        std::ofstream(path / file, std::ios::binary) << content;
        return path / file;
    }
    std::string read(const std::string& file) const {
        std::ifstream stream(path / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    bool has(const std::string& file) const { return std::filesystem::exists(path / file); }
    std::size_t fileCount() const {
        const std::filesystem::directory_iterator files(path);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    std::filesystem::path path;
};

}  // namespace support
