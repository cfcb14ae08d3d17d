#include "tests/workbench/script/script_fixture.h"
#include "tests/workbench/toolkit/dropdown_fixture.h"

namespace workbench::script {
namespace {

/// A control "FilterControl" of the test's own, which drops a tree down.
class NodeMethodsTest : public ScriptTest {
protected:
    NodeMethodsTest() {
        CFrameWnd& frame = workbench().toolkit().frame().frame();
        m_combo.Create(WS_CHILD | WS_VISIBLE, {400, 100, 520, 400}, &frame, 7);
        workbench().windows().setName(m_combo.m_hWnd, "FilterControl");
        auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
        entry->text = L"All";
        m_combo.AddItem(entry.release());
        m_combo.SetCurSel(0);
    }
    /// Runs a script behind the click that opens the dropdown of `filter`.
    void runOpen(const std::string& text) {
        run("local filter = wb.control('FilterControl') filter:click() " + text);
    }
    TestTree& tree() { return m_combo.dropdown->tree; }

    DropdownCombo m_combo;
};

TEST_F(NodeMethodsTest, AControlThatIsAListItselfTellsItsEntries) {
    run(R"(local filter = wb.control("FilterControl")
        assert(#filter:items() == 1 and filter:items()[1] == "All")
        assert(filter:selected() == 0))");
}

TEST_F(NodeMethodsTest, WithoutADropdownThereIsNoTree) {
    EXPECT_EQ(complaintOf("wb.control('FilterControl'):tree()"),
              "control:tree: there is no tree on show");
    EXPECT_EQ(complaintOf("wb.control('FilterControl'):node('All')"),
              "control:node: there is no tree on show");
}

TEST_F(NodeMethodsTest, TheTreeIsNestedTables) {
    runOpen(R"(local top = filter:tree()
        assert(#top == 1 and top[1].text == "All" and top[1].expanded and not top[1].selected)
        assert(top[1].nodes[1].text == "Walls" and not top[1].nodes[1].expanded)
        assert(top[1].nodes[1].nodes[1].text == "Inner")
        assert(#top[1].nodes[2].nodes == 0))");
}

TEST_F(NodeMethodsTest, ANodeIsNilWhereThereIsNone) {
    runOpen(R"(assert(filter:node("All/Walls") ~= nil and filter:node("Walls") == nil))");
}

TEST_F(NodeMethodsTest, AClickSelectsAndOpensTheWayToIt) {
    runOpen(R"(local node = filter:node("All/Walls/Inner")
        assert(not node:selected() and not filter:node("All/Walls"):expanded())
        assert(node:click())
        assert(node:selected() and filter:node("All/Walls"):expanded()))");
    EXPECT_EQ(tree().log.back(), "press Inner 4");
}

TEST_F(NodeMethodsTest, ARenamedNodeHasAnotherPath) {
    runOpen(R"(local node = filter:node("All/doors")
        node:rename("gates")
        assert(filter:node("All/gates") ~= nil and filter:node("All/doors") == nil)
        local held, why = pcall(node.click, node)
        assert(not held and why:find('the node "All/doors" is gone', 1, true)))");
}

TEST_F(NodeMethodsTest, AMenuTellsItsLinesAndTakesAChoice) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 11, L"One");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING | MF_GRAYED, 12, L"Two");
    m_combo.onOpened = [&menu](TestDropdown& dropdown) { dropdown.tree.menu = &menu; };
    runOpen(R"(local node = filter:node("All/Walls")
        local lines, gray = node:menu()
        assert(table.concat(lines, " ") == "One - Two" and gray.Two and not gray.One)
        node:menu("One"))");
    EXPECT_EQ(tree().log.back(), "command 11");
}

TEST_F(NodeMethodsTest, WithoutPicturesANodeHasNoIcon) {
    runOpen(R"(assert(filter:node("All"):icon() == nil))");
}

TEST_F(NodeMethodsTest, AnIconIsToldByWhereItComesFrom) {
    CImageList list;
    list.Create(1, 1, ILC_COLOR24 | ILC_MASK, 0, 4);
    CBitmap strip;
    PngPicture pixels;
    pixels.width = 3;
    pixels.height = 1;
    pixels.rgba.resize(12);
    strip.m_hBitmap = workbench().toolkit().pictures().addDecoded("#1290", pixels);
    list.Add(&strip, 0xff00ff);
    m_combo.onOpened = [&list](TestDropdown& dropdown) {
        dropdown.tree.SetImageList(&list, TVSIL_NORMAL);
    };
    runOpen(R"(local node = filter:node("All/Walls")
        assert(node:icon() == "#1290:1")
        node:click()
        assert(node:icon() == "#1290:2"))");
    m_combo.DestroyWindow();
}

TEST_F(NodeMethodsTest, TheCheckIsReadAndClickedOnlyWhenItDiffers) {
    runOpen(R"(assert(filter:invert() == false)
        assert(filter:invert(true) == true and filter:invert(true) == true))");
    EXPECT_EQ(m_combo.dropdown->check.clicks, 1);
}

}  // namespace
}  // namespace workbench::script
