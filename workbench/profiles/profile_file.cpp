#include "workbench/profiles/profile_file.h"

#include "workbench/base/input_error.h"
#include "workbench/profiles/file_descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <system_error>

namespace workbench {

namespace {

namespace fs = std::filesystem;

std::string systemText() {
    return std::generic_category().message(errno);
}

std::string readWhole(const fs::path& file) {
    if (!fs::is_regular_file(file))
        throw InputError(file.string(), "the profile is not a file");
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw InputError(file.string(), "the profile cannot be opened: " + systemText());
    std::ostringstream content;
    content << stream.rdbuf();
    if (stream.bad() || content.bad())
        throw InputError(file.string(), "the profile cannot be read");
    return content.str();
}

/// Renames a damaged file to the first free name beside it, and returns that.
fs::path setAside(const fs::path& file, const std::string& reason) {
    fs::path aside = file;
    aside += ".damaged";
    for (int number = 2; fs::exists(fs::symlink_status(aside)); ++number) {
        aside = file;
        aside += ".damaged-" + std::to_string(number);
    }
    std::error_code failure;
    fs::rename(file, aside, failure);
    if (failure) {
        throw InputError(file.string(), "the profile is damaged (" + reason +
                                            ") and cannot be set aside: " + failure.message());
    }
    return aside;
}

void writeWhole(const FileDescriptor& target, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(target.get(), content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw std::system_error(errno, std::generic_category());
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// Has the system put an open file, or a folder's list of files, on the disk.
void flushToDisk(const FileDescriptor& target) {
    if (::fsync(target.get()) != 0)
        throw std::system_error(errno, std::generic_category());
}

void writeAndRename(const fs::path& temporary, const fs::path& file, std::string_view content) {
    {
        const FileDescriptor target(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC);
        writeWhole(target, content);
        flushToDisk(target);
    }
    fs::rename(temporary, file);
    // The new name is safe only once the folder is.
    flushToDisk(FileDescriptor(file.parent_path(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

}  // namespace

ProfileReading readProfileFile(const fs::path& file) {
    if (!fs::exists(fs::symlink_status(file)))
        return {};
    std::string reason;
    const std::string content = readWhole(file);
    std::shared_ptr<XmlTree> tree = XmlTree::parse(content, kProfileRoot, reason);
    if (tree != nullptr)
        return {tree, {}};
    const fs::path aside = setAside(file, reason);
    return {nullptr, file.string() + ": the profile is damaged: " + reason +
                         "; it was set aside as " + aside.filename().string()};
}

void writeFileAtomically(const fs::path& file, std::string_view content) {
    fs::path temporary = file;
    temporary += ".new-" + std::to_string(::getpid());
    try {
        writeAndRename(temporary, file, content);
    } catch (const std::system_error& failure) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        throw InputError(file.string(), "the file cannot be written: " + failure.code().message());
    }
}

std::optional<std::string> profileFileName(std::string_view profile) {
    constexpr std::size_t kLongest = 200;  // bytes, to leave room for what is put behind
    constexpr std::string_view kRefused = "/\\:*?\"<>|";
    if (profile.empty() || profile.size() > kLongest)
        return std::nullopt;
    if (profile.front() == '.' || profile.back() == '.' || profile.back() == ' ')
        return std::nullopt;
    const bool refused = std::any_of(profile.begin(), profile.end(), [&](char character) {
        return static_cast<unsigned char>(character) < 0x20 ||
               kRefused.find(character) != std::string_view::npos;
    });
    if (refused)
        return std::nullopt;
    return std::string(profile) + ".xml";
}

}  // namespace workbench
