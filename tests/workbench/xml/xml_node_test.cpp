#include "workbench/xml/xml_node.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/host/workbench.h"

#include <gtest/gtest.h>

namespace workbench {

class XmlNodeTest : public testing::Test {
protected:
    void TearDown() override {
        if (node != nullptr)
            node->Release();
        EXPECT_EQ(XmlNode::liveCount(), 0);
    }

    Workbench bench{testOptions()};
    std::shared_ptr<XmlTree> tree = XmlTree::make("Root");
    XmlNode* node = tree->makeNode(tree->root());
};

TEST_F(XmlNodeTest, LivesUntilItsLastRelease) {
    EXPECT_EQ(XmlNode::liveCount(), 1);
    EXPECT_EQ(node->AddRef(), 2U);
    EXPECT_EQ(node->Release(), 1U);
    EXPECT_EQ(XmlNode::liveCount(), 1);
    EXPECT_EQ(node->Release(), 0U);
    node = nullptr;
    EXPECT_EQ(XmlNode::liveCount(), 0);
}

TEST_F(XmlNodeTest, TheInterfaceIsGivenOutCountedUp) {
    void* object = nullptr;
    ASSERT_EQ(node->QueryInterface(IID_IXMLDOMNode, &object), S_OK);
    EXPECT_EQ(object, static_cast<IXMLDOMNode*>(node));
    EXPECT_EQ(static_cast<IXMLDOMNode*>(object)->Release(), 1U);
}

TEST_F(XmlNodeTest, AForeignInterfaceOrAFaultGivesNull) {
    void* object = node;
    EXPECT_EQ(node->QueryInterface(GUID{}, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    bench.faults().fail("IXMLDOMNode::QueryInterface", -5, 1);
    EXPECT_EQ(node->QueryInterface(IID_IXMLDOMNode, &object), -5);
    EXPECT_EQ(node->QueryInterface(IID_IXMLDOMNode, nullptr), kXmlBadNode);
}

TEST_F(XmlNodeTest, ADetachedNodeIsNoLongerToBeHad) {
    EXPECT_EQ(&xmlNodeOf(node), node);
    node->detach();
    EXPECT_THROW(xmlNodeOf(node), VxComError);
    EXPECT_THROW(xmlNodeOf(nullptr), VxComError);
}

}  // namespace workbench
