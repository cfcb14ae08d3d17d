#include "workbench/xml/xml_tree.h"

#include "workbench/xml/xml_node.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(XmlTreeTest, AFreshTreeHasOnlyItsRoot) {
    const auto tree = XmlTree::make("Profile");
    EXPECT_STREQ(tree->root().name(), "Profile");
    EXPECT_FALSE(tree->root().first_child());
}

TEST(XmlTreeTest, TextAndTreeAreTheSameThing) {
    std::string reason;
    const auto tree = XmlTree::parse("<A><B x=\"1\">two</B></A>", "A", reason);
    ASSERT_NE(tree, nullptr) << reason;
    const auto again = XmlTree::parse(tree->text(), "A", reason);
    ASSERT_NE(again, nullptr) << reason;
    EXPECT_STREQ(again->root().child("B").attribute("x").value(), "1");
    EXPECT_STREQ(again->root().child("B").text().get(), "two");
}

TEST(XmlTreeTest, DamageIsToldWithItsPlace) {
    std::string reason;
    EXPECT_EQ(XmlTree::parse("<A>\n  <B>\n</A>", "A", reason), nullptr);
    EXPECT_NE(reason.find("line 3"), std::string::npos) << reason;
    EXPECT_EQ(XmlTree::parse("", "A", reason), nullptr);
    EXPECT_FALSE(reason.empty());
    EXPECT_EQ(XmlTree::parse("no markup at all", "A", reason), nullptr);
}

TEST(XmlTreeTest, AnotherRootIsRefused) {
    std::string reason;
    EXPECT_EQ(XmlTree::parse("<B/>", "A", reason), nullptr);
    EXPECT_NE(reason.find("<A>"), std::string::npos) << reason;
}

TEST(XmlTreeTest, NamesFollowTheRulesOfXml) {
    EXPECT_TRUE(isXmlName("CVxDaPanel"));
    EXPECT_TRUE(isXmlName("_a-1.b"));
    EXPECT_TRUE(isXmlName("\xC3\x84pfel"));
    EXPECT_FALSE(isXmlName(""));
    EXPECT_FALSE(isXmlName("1a"));
    EXPECT_FALSE(isXmlName("a b"));
    EXPECT_FALSE(isXmlName("a<b"));
}

TEST(XmlTreeTest, ANodeObjectKeepsItsTreeAlive) {
    const int before = XmlNode::liveCount();
    XmlNode* node = nullptr;
    {
        const auto tree = XmlTree::make("Profile");
        node = tree->makeNode(tree->root());
    }
    EXPECT_STREQ(node->element().name(), "Profile");
    EXPECT_EQ(node->Release(), 0U);
    EXPECT_EQ(XmlNode::liveCount(), before);
}

TEST(XmlTreeTest, RemovedElementsAreTakenFromTheirNodeObjects) {
    std::string reason;
    const auto tree = XmlTree::parse("<A><B><C/></B><D/></A>", "A", reason);
    XmlNode* outer = tree->makeNode(tree->root().child("B"));
    XmlNode* inner = tree->makeNode(tree->root().child("B").child("C"));
    XmlNode* other = tree->makeNode(tree->root().child("D"));
    tree->removeChildren(tree->root().child("B"));
    EXPECT_TRUE(outer->element());
    EXPECT_FALSE(inner->element());
    EXPECT_TRUE(other->element());
    for (XmlNode* node : {outer, inner, other})
        node->Release();
}

}  // namespace workbench
