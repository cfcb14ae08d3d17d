#include "workbench/profiles/profile_file.h"

#include "tests/support/temporary_folder.h"
#include "workbench/base/input_error.h"

#include <gtest/gtest.h>

namespace workbench {

class ProfileFileTest : public testing::Test {
protected:
    std::filesystem::path file() const { return folder.path / "Default.xml"; }

    support::TemporaryFolder folder;
};

TEST_F(ProfileFileTest, AMissingFileIsNoProfileAndNoComplaint) {
    const ProfileReading reading = readProfileFile(file());
    EXPECT_EQ(reading.tree, nullptr);
    EXPECT_EQ(reading.complaint, "");
}

TEST_F(ProfileFileTest, AWholeFileIsRead) {
    folder.write("Default.xml", "<Profile><Storage/></Profile>");
    const ProfileReading reading = readProfileFile(file());
    ASSERT_NE(reading.tree, nullptr);
    EXPECT_EQ(reading.complaint, "");
    EXPECT_TRUE(folder.has("Default.xml"));
}

TEST_F(ProfileFileTest, ADamagedFileIsSetAsideWithOneComplaint) {
    folder.write("Default.xml", "<Profile><Stor");
    const ProfileReading reading = readProfileFile(file());
    EXPECT_EQ(reading.tree, nullptr);
    EXPECT_EQ(reading.complaint.find(file().string() + ": "), 0U) << reading.complaint;
    EXPECT_NE(reading.complaint.find("Default.xml.damaged"), std::string::npos);
    EXPECT_FALSE(folder.has("Default.xml"));
    EXPECT_EQ(folder.read("Default.xml.damaged"), "<Profile><Stor");
}

TEST_F(ProfileFileTest, AnEarlierDamagedFileIsNotOverwritten) {
    for (const char* content : {"first", "second", "third"}) {
        folder.write("Default.xml", content);
        readProfileFile(file());
    }
    EXPECT_EQ(folder.read("Default.xml.damaged"), "first");
    EXPECT_EQ(folder.read("Default.xml.damaged-2"), "second");
    EXPECT_EQ(folder.read("Default.xml.damaged-3"), "third");
}

TEST_F(ProfileFileTest, AnEmptyFileAndAForeignRootAreDamage) {
    folder.write("Default.xml", "");
    EXPECT_NE(readProfileFile(file()).complaint, "");
    folder.write("Default.xml", "<Drawing/>");
    EXPECT_NE(readProfileFile(file()).complaint, "");
}

TEST_F(ProfileFileTest, AFolderInPlaceOfTheFileIsLeftAloneAndTold) {
    std::filesystem::create_directory(file());
    EXPECT_THROW(readProfileFile(file()), InputError);
    EXPECT_TRUE(std::filesystem::is_directory(file()));
}

TEST_F(ProfileFileTest, WritingReplacesTheFileAndLeavesNothingElse) {
    writeFileAtomically(file(), "one");
    EXPECT_EQ(folder.read("Default.xml"), "one");
    writeFileAtomically(file(), "two");
    EXPECT_EQ(folder.read("Default.xml"), "two");
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST_F(ProfileFileTest, AFailedWriteLeavesTheOldContentAndNoRest) {
    // A folder that isn't empty cannot be replaced by a file, so the last step fails.
    std::filesystem::create_directories(file() / "inside");
    EXPECT_THROW(writeFileAtomically(file(), "new"), InputError);
    EXPECT_TRUE(std::filesystem::is_directory(file() / "inside"));
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST_F(ProfileFileTest, AFolderThatIsGoneIsToldWithTheFile) {
    try {
        writeFileAtomically(folder.path / "gone" / "Default.xml", "new");
        FAIL() << "nothing was thrown";
    } catch (const InputError& error) {
        EXPECT_NE(error.place().find("Default.xml"), std::string::npos);
    }
}

struct NameCase {
    const char* name;
    bool isTaken;
};

class ProfileNameTest : public testing::TestWithParam<NameCase> {};

TEST_P(ProfileNameTest, IsTakenOrRefused) {
    EXPECT_EQ(profileFileName(GetParam().name).has_value(), GetParam().isTaken);
}

INSTANTIATE_TEST_SUITE_P(Names, ProfileNameTest,
                         testing::Values(NameCase{"Default", true}, NameCase{"My profile 2", true},
                                         NameCase{"\xC3\x84nne", true}, NameCase{"a.b", true},
                                         NameCase{"", false}, NameCase{".", false},
                                         NameCase{"..", false}, NameCase{".hidden", false},
                                         NameCase{"../Default", false}, NameCase{"a/b", false},
                                         NameCase{"a\\b", false}, NameCase{"C:x", false},
                                         NameCase{"a\nb", false}, NameCase{"what?", false},
                                         NameCase{"end.", false}, NameCase{"end ", false}));

TEST(ProfileNameLengthTest, ANameTooLongForAFileIsRefused) {
    EXPECT_TRUE(profileFileName(std::string(200, 'a')));
    EXPECT_FALSE(profileFileName(std::string(201, 'a')));
}

}  // namespace workbench
