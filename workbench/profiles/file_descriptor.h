#pragma once

#include <filesystem>

namespace workbench {

/// An open file of the system, closed with this object.
class FileDescriptor {
public:
    /// Opens with the system's flags; a file that is made gets the user's usual rights. Throws
    /// `std::system_error`.
    FileDescriptor(const std::filesystem::path& file, int flags);
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor();

    int get() const { return m_descriptor; }

private:
    int m_descriptor;
};

}  // namespace workbench
