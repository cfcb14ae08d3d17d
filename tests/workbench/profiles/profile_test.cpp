#include "workbench/profiles/profile.h"

#include "tests/support/temporary_folder.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/xml/xml_node.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace workbench {

class ProfileTest : public testing::Test {
protected:
    std::unique_ptr<Profile> open() {
        return std::make_unique<Profile>("Default", folder.path / "Default.xml", complaint);
    }
    /// Whether a node was handed out, which is given back.
    static bool isNode(IXMLDOMNode* node) {
        if (node == nullptr)
            return false;
        node->Release();
        return true;
    }

    Workbench bench{testOptions()};
    support::TemporaryFolder folder;
    std::string complaint;
};

TEST_F(ProfileTest, WithoutAFileItStartsFresh) {
    const auto profile = open();
    EXPECT_EQ(complaint, "");
    EXPECT_EQ(profile->name(), "Default");
    EXPECT_EQ(profile->wideName(), L"Default");
    EXPECT_FALSE(isNode(profile->openNode(L"Dashboard")));
}

TEST_F(ProfileTest, ANodeIsMadeWithAllThatIsMissingAboveIt) {
    const auto profile = open();
    EXPECT_TRUE(isNode(profile->createNode(L"A/B/C")));
    EXPECT_TRUE(isNode(profile->openNode(L"A/B")));
    EXPECT_TRUE(isNode(profile->openNode(L"A/B/C")));
    EXPECT_FALSE(isNode(profile->openNode(L"B")));
    EXPECT_EQ(XmlNode::liveCount(), 0);
}

TEST_F(ProfileTest, MakingANodeThatIsThereOpensIt) {
    const auto profile = open();
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(isNode(profile->createNode(L"A")));
    profile->save();
    const std::string content = folder.read("Default.xml");
    EXPECT_NE(content.find("<A"), std::string::npos);
    EXPECT_EQ(content.find("<A"), content.rfind("<A"));
}

TEST_F(ProfileTest, APathThatCannotBeANodeIsRefused) {
    const auto profile = open();
    for (const wchar_t* path : {L"", L"/", L"A//B", L"A/", L"two words", L"../A"}) {
        EXPECT_FALSE(isNode(profile->createNode(path))) << path;
        EXPECT_FALSE(isNode(profile->openNode(path))) << path;
    }
}

TEST_F(ProfileTest, NodesAndVariablesComeBackFromTheFile) {
    auto profile = open();
    EXPECT_TRUE(isNode(profile->createNode(L"Dashboard")));
    profile->setVariable("STEPSIZE", 2.5);
    profile->save();
    profile = open();
    EXPECT_TRUE(isNode(profile->openNode(L"Dashboard")));
    EXPECT_FALSE(isNode(profile->openNode(L"Variables")));
    EXPECT_EQ(profile->variable("STEPSIZE"), Value(2.5));
}

TEST_F(ProfileTest, ADamagedFileIsNamedInTheComplaint) {
    folder.write("Default.xml", "<Profile>");
    EXPECT_FALSE(isNode(open()->openNode(L"Dashboard")));
    EXPECT_NE(complaint.find("Default.xml"), std::string::npos);
}

TEST_F(ProfileTest, TheCallsCanBeToldToFail) {
    const auto profile = open();
    bench.faults().fail("VxApProfileStorage::createNode", {}, 1);
    EXPECT_FALSE(isNode(profile->createNode(L"A")));
    EXPECT_TRUE(isNode(profile->createNode(L"A")));
    bench.faults().fail("VxApProfileStorage::openNode", {}, 1);
    EXPECT_FALSE(isNode(profile->openNode(L"A")));
}

}  // namespace workbench
