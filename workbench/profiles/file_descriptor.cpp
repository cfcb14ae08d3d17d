#include "workbench/profiles/file_descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace workbench {

FileDescriptor::FileDescriptor(const std::filesystem::path& file, int flags)
    : m_descriptor(::open(file.c_str(), flags, 0666)) {
    if (m_descriptor < 0)
        throw std::system_error(errno, std::generic_category());
}

FileDescriptor::~FileDescriptor() {
    ::close(m_descriptor);
}

}  // namespace workbench
