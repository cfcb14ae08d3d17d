#include "workbench/toolkit/kept_bars.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/xml/xml_node.h"

namespace workbench {
namespace {

/// Keeps each tool's bar in an element of its own.
class TestStorage final : public BarStorage {
public:
    IXMLDOMNode* openBar(const GUID& tool, bool create) override {
        const std::string name = "Bar" + std::to_string(tool.Data1);
        pugi::xml_node element = m_tree->root().child(name.c_str());
        if (!element && create)
            element = m_tree->root().append_child(name.c_str());
        return element ? m_tree->makeNode(element) : nullptr;
    }
    void complain(const GUID& tool) override { complaints.push_back(tool.Data1); }
    std::string text() const { return m_tree->text(); }

    std::vector<std::uint32_t> complaints;  // the first parts of the tools

private:
    std::shared_ptr<XmlTree> m_tree = XmlTree::make("Bars");
};

class KeptBarsTest : public ToolkitTest {
protected:
    KeptBarsTest() { toolkit().bars().setStorage(&m_storage); }
    ~KeptBarsTest() override { toolkit().bars().setStorage(nullptr); }

    /// Makes the set anew, as the next run of the host does.
    void makeAgain() {
        m_set.reset();
        toolkit().tools().forgetPlaces();
        m_set = std::make_unique<Listening<CQrUiPaletteSet>>(0U);
        m_set->SetToolID(kTool);
        m_set->Create(L"Again", 0, {50, 50, 285, 350}, &frame().frame(), 0);
        m_set->EnableDocking(0x5000);
        m_set->RestoreControlBar(kRightDockBar, {50, 50, 285, 350});
    }

    TestStorage m_storage;
    const CRect m_place{10, 20, 310, 420};
};

TEST_F(KeptBarsTest, ABarComesBackWhereItStood) {
    frame().floatAt(*m_set, m_place);
    toolkit().bars().saveAll();
    makeAgain();
    EXPECT_TRUE(m_set->IsFloating());
    EXPECT_EQ(frame().placeOf(*m_set).rect, m_place);
}

TEST_F(KeptBarsTest, ABarThatWasNotSavedStandsWhereItsModuleSays) {
    frame().floatAt(*m_set, m_place);
    makeAgain();
    EXPECT_FALSE(m_set->IsFloating());
    EXPECT_EQ(frame().placeOf(*m_set).edge, Edge::Right);
}

TEST_F(KeptBarsTest, ThePlaceOfABarThatHasGoneIsSavedToo) {
    frame().floatAt(*m_set, m_place);
    m_set.reset();
    toolkit().bars().saveAll();
    makeAgain();
    EXPECT_TRUE(m_set->IsFloating());
}

TEST_F(KeptBarsTest, AnotherStoresPlaceIsTakenAtOnce) {
    frame().floatAt(*m_set, m_place);
    toolkit().bars().saveAll();
    frame().dock(*m_set, Edge::Left);
    toolkit().bars().loadAll();
    EXPECT_TRUE(m_set->IsFloating());
}

TEST_F(KeptBarsTest, AStoreWithoutThePlaceLeavesTheBarWhereItIs) {
    frame().floatAt(*m_set, m_place);
    toolkit().bars().loadAll();
    EXPECT_TRUE(m_set->IsFloating());
}

TEST_F(KeptBarsTest, APlaceThatTheSetCannotTakeIsComplainedOf) {
    m_storage.openBar(kTool, true)->Release();
    makeAgain();
    EXPECT_EQ(m_storage.complaints, std::vector<std::uint32_t>{0x12345678});
    EXPECT_EQ(frame().placeOf(*m_set).edge, Edge::Right);
}

TEST_F(KeptBarsTest, WithoutAStoreNothingIsKept) {
    toolkit().bars().setStorage(nullptr);
    toolkit().bars().saveAll();
    EXPECT_EQ(m_storage.text().find("Bar305419896"), std::string::npos);
    toolkit().bars().setStorage(&m_storage);
    toolkit().bars().saveAll();
    EXPECT_NE(m_storage.text().find("Bar305419896"), std::string::npos);
}

}  // namespace
}  // namespace workbench
