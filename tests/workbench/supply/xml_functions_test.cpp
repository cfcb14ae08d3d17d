#include "tests/workbench/host/test_options.h"
#include "workbench/host/workbench.h"
#include "workbench/xml/xml_node_operations.h"

#include <hostapi/vxut.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace workbench {

namespace {

struct Releaser {
    void operator()(IXMLDOMNode* node) const { node->Release(); }
};
using NodePtr = std::unique_ptr<IXMLDOMNode, Releaser>;

/// The code that a call raises; nothing if it raises none.
std::optional<HRESULT> raised(const std::function<void()>& call) {
    try {
        call();
    } catch (const VxComError& error) {
        return error.code;
    }
    return std::nullopt;
}

}  // namespace

class XmlFunctionsTest : public testing::Test {
protected:
    void TearDown() override {
        root.reset();
        EXPECT_EQ(XmlNode::liveCount(), 0);
    }

    NodePtr child(const wchar_t* name) { return NodePtr(VxUt::GetChildNode(root.get(), name)); }
    NodePtr add(const wchar_t* name) {
        return NodePtr(VxUt::AddChildNode(root.get(), name, VxUt::kElementNode));
    }
    Faults& faults() { return bench.faults(); }

    Workbench bench{testOptions()};
    std::shared_ptr<XmlTree> tree = XmlTree::make("Root");
    NodePtr root{tree->makeNode(tree->root())};
};

TEST_F(XmlFunctionsTest, ChildrenComeInOrderAndByExactName) {
    add(L"A");
    add(L"B");
    add(L"A");
    const CTypedPtrArray<IXMLDOMNode*> nodes = VxUt::GetChildNodes(root.get());
    ASSERT_EQ(nodes.size(), 3U);
    EXPECT_EQ(VxUt::GetNodeName(nodes[1]), L"B");
    for (IXMLDOMNode* node : nodes)
        node->Release();
    EXPECT_NE(child(L"B"), nullptr);
    EXPECT_EQ(child(L"b"), nullptr);
    EXPECT_EQ(child(L"C"), nullptr);
}

TEST_F(XmlFunctionsTest, OnlyElementsCountAsChildren) {
    std::string reason;
    const auto other = XmlTree::parse("<R>text<!-- remark --><A/></R>", "R", reason);
    const NodePtr node(other->makeNode(other->root()));
    const CTypedPtrArray<IXMLDOMNode*> nodes = VxUt::GetChildNodes(node.get());
    ASSERT_EQ(nodes.size(), 1U);
    nodes.front()->Release();
}

TEST_F(XmlFunctionsTest, AttributesAreTextsAndWholeNumbers) {
    VxUt::SetAttributeValue(root.get(), L"ID", VxString(L"3D \"Navigation\" <\u00e4>\n\t&"));
    VxUt::SetAttributeValue(root.get(), L"Visible", std::int32_t{1});
    VxUt::SetAttributeValue(root.get(), L"Visible", std::int32_t{-12});
    std::string reason;
    const auto again = XmlTree::parse(tree->text(), "Root", reason);
    ASSERT_NE(again, nullptr) << reason;
    const NodePtr node(again->makeNode(again->root()));

    VxString id;
    EXPECT_TRUE(VxUt::GetAttributeValue(node.get(), L"ID", id));
    EXPECT_EQ(id, L"3D \"Navigation\" <\u00e4>\n\t&");
    std::int32_t visible = 0;
    EXPECT_TRUE(VxUt::GetAttributeValue(node.get(), L"Visible", visible));
    EXPECT_EQ(visible, -12);
}

TEST_F(XmlFunctionsTest, AMissingOrMalformedAttributeLeavesTheValueAlone) {
    VxUt::SetAttributeValue(root.get(), L"Visible", VxString(L"yes"));
    std::int32_t number = 7;
    VxString text = L"before";
    EXPECT_FALSE(VxUt::GetAttributeValue(root.get(), L"Visible", number));
    EXPECT_FALSE(VxUt::GetAttributeValue(root.get(), L"Nothing", number));
    EXPECT_FALSE(VxUt::GetAttributeValue(root.get(), L"Nothing", text));
    EXPECT_FALSE(VxUt::GetAttributeValue(nullptr, L"Visible", text));
    EXPECT_EQ(number, 7);
    EXPECT_EQ(text, L"before");
}

TEST_F(XmlFunctionsTest, WhatXmlCannotHoldIsRefused) {
    EXPECT_EQ(add(L"two words"), nullptr);
    EXPECT_EQ(VxUt::AddChildNode(root.get(), L"A", 3), nullptr);
    EXPECT_TRUE(raised([&] { VxUt::SetAttributeValue(root.get(), L"a b", VxString(L"x")); }));
    EXPECT_TRUE(raised([&] { VxUt::SetAttributeValue(root.get(), L"a", VxString(L"\x01")); }));
    EXPECT_EQ(raised([&] { VxUt::RemoveChildren(nullptr); }), kXmlBadNode);
}

TEST_F(XmlFunctionsTest, ANodeWhoseElementIsGoneFailsEveryCall) {
    const NodePtr node = add(L"A");
    VxUt::RemoveChildren(root.get());
    EXPECT_EQ(VxUt::GetChildNode(node.get(), L"B"), nullptr);
    EXPECT_TRUE(VxUt::GetChildNodes(node.get()).empty());
    EXPECT_EQ(VxUt::GetNodeName(node.get()), L"");
    EXPECT_EQ(raised([&] { VxUt::AddChildNode(node.get(), L"B", 1); }), kXmlNodeGone);
    EXPECT_EQ(raised([&] { VxUt::RemoveChildren(node.get()); }), kXmlNodeGone);
}

TEST_F(XmlFunctionsTest, AStringSurvivesItsNode) {
    const NodePtr node = add(L"ToolPaletteGroupName");
    for (const VxString& text : {VxString(L"House Building"), VxString(L"  "),
                                 VxString(L" a\n<&> "), VxString(L"\u732b")}) {
        VxUtResString saved;
        saved.setText(text);
        saved.Save(node.get());
        std::string reason;
        const auto again = XmlTree::parse(tree->text(), "Root", reason);
        ASSERT_NE(again, nullptr) << reason;
        const NodePtr loadedNode(again->makeNode(again->root().first_child()));
        VxUtResString loaded;
        EXPECT_NE(loaded.Load(loadedNode.get()), 0);
        EXPECT_EQ(loaded.text(), text);
    }
}

TEST_F(XmlFunctionsTest, ANodeWithoutTextLeavesTheStringEmpty) {
    VxUtResString text;
    text.setText(L"before");
    EXPECT_EQ(text.Load(root.get()), 0);
    EXPECT_TRUE(text.isEmpty());
}

TEST_F(XmlFunctionsTest, ToldFailuresAnswerOrRaise) {
    add(L"A");
    faults().fail("VxUt::GetChildNode", {}, 1);
    EXPECT_EQ(child(L"A"), nullptr);
    faults().fail("VxUt::AddChildNode", {}, 1);
    EXPECT_EQ(add(L"B"), nullptr);
    faults().fail("VxUt::AddChildNode", -77, 1);
    EXPECT_EQ(raised([&] { add(L"B"); }), -77);
    faults().fail("VxUt::SetAttributeValue", -78, 1);
    EXPECT_EQ(raised([&] { VxUt::SetAttributeValue(root.get(), L"a", VxString(L"b")); }), -78);
    faults().fail("VxUt::RemoveChildren", {}, 1);
    EXPECT_TRUE(raised([&] { VxUt::RemoveChildren(root.get()); }));
    faults().fail("VxUtResString::Save", {}, 1);
    EXPECT_TRUE(raised([&] { VxUtResString().Save(root.get()); }));
    faults().fail("VxUt::GetChildNodes", {}, 1);
    EXPECT_TRUE(VxUt::GetChildNodes(root.get()).empty());
    EXPECT_NE(child(L"A"), nullptr);
}

}  // namespace workbench
