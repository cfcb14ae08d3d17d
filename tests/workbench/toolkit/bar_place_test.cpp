#include "workbench/toolkit/bar_place.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/xml/xml_node.h"

#include <hostapi/vxut.h>

namespace workbench {
namespace {

class BarPlaceTest : public ToolkitTest {
protected:
    BarPlaceTest() {
        const auto tree = XmlTree::make("Bar");
        m_node = tree->makeNode(tree->root());
    }
    ~BarPlaceTest() override { m_node->Release(); }

    /// Writes an attribute of the saved place.
    void spoil(const wchar_t* attribute, const VxString& value) {
        IXMLDOMNode* const place = VxUt::GetChildNode(m_node, L"Place");
        VxUt::SetAttributeValue(place, attribute, value);
        place->Release();
    }

    XmlNode* m_node;  // counted
    const BarPlace m_floating{true, Edge::Left, false, {10, 20, 310, 420}};
};

TEST_F(BarPlaceTest, APlaceComesBackAsItWasSaved) {
    for (const BarPlace& place :
         {m_floating, BarPlace{false, Edge::Right, true, {0, 0, 235, 300}}}) {
        saveBarPlace(m_node, place);
        EXPECT_EQ(loadBarPlace(m_node), place);
    }
    const CTypedPtrArray<IXMLDOMNode*> places = VxUt::GetChildNodes(m_node);
    EXPECT_EQ(places.size(), 1U);
    for (IXMLDOMNode* place : places)
        place->Release();
}

TEST_F(BarPlaceTest, ANodeWithoutAPlaceGivesNone) {
    EXPECT_EQ(loadBarPlace(m_node), std::nullopt);
}

TEST_F(BarPlaceTest, APlaceThatMakesNoSenseIsNone) {
    saveBarPlace(m_node, m_floating);
    spoil(L"Right", L"wide");
    EXPECT_EQ(loadBarPlace(m_node), std::nullopt);
    spoil(L"Right", L"5");
    EXPECT_EQ(loadBarPlace(m_node), std::nullopt);
}

TEST_F(BarPlaceTest, ASetSavesAndLoadsItsPlace) {
    frame().floatAt(*m_set, m_floating.rect);
    EXPECT_EQ(m_set->Save(m_node), 1);
    frame().dock(*m_set, Edge::Right);
    EXPECT_EQ(m_set->Load(m_node), 1);
    EXPECT_TRUE(m_set->IsFloating());
    EXPECT_EQ(frame().placeOf(*m_set).rect, m_floating.rect);
}

TEST_F(BarPlaceTest, ASetDoesNotLoadAPlaceWhereItMayNotStand) {
    saveBarPlace(m_node, BarPlace{false, Edge::Left, false, {0, 0, 235, 300}});
    m_set->EnableDocking(0x4000);
    EXPECT_EQ(m_set->Load(m_node), 0);
    EXPECT_EQ(frame().placeOf(*m_set).edge, Edge::Right);
}

TEST_F(BarPlaceTest, ASetWithoutANodeOrPlaceFails) {
    EXPECT_EQ(m_set->Save(nullptr), 0);
    EXPECT_EQ(m_set->Load(nullptr), 0);
    EXPECT_EQ(m_set->Load(m_node), 0);
    m_workbench.faults().fail("CQrUiPaletteSet::Save");
    EXPECT_EQ(m_set->Save(m_node), 0);
}

}  // namespace
}  // namespace workbench
