#include "workbench/profiles/file_descriptor.h"

#include "tests/support/temporary_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <system_error>

namespace workbench {

TEST(FileDescriptorTest, IsClosedWithItsObject) {
    const support::TemporaryFolder folder;
    int descriptor = -1;
    {
        const FileDescriptor file(folder.path / "file", O_WRONLY | O_CREAT);
        descriptor = file.get();
        EXPECT_NE(fcntl(descriptor, F_GETFD), -1);
    }
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
    EXPECT_TRUE(folder.has("file"));
}

TEST(FileDescriptorTest, AFileThatCannotBeOpenedIsTold) {
    const support::TemporaryFolder folder;
    EXPECT_THROW(FileDescriptor(folder.path / "missing", O_RDONLY), std::system_error);
}

}  // namespace workbench
