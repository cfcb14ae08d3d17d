#include "workbench/toolbar/toolbar_controls.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/base/text.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/combo_widget.h"

#include <hostapi/qrui18/toolbar_control.h>

#include <string>
#include <vector>

namespace workbench {
namespace {

using Texts = std::vector<std::string>;

class ToolbarControlsTest : public ToolkitTest {
protected:
    static constexpr UINT kLayers = 1111;
    static constexpr UINT kColours = 3333;
    static constexpr UINT kTextStyles = 11117;

    ToolbarControlsTest() {
        m_toolPanel->answers[WM_COMMAND] = [this](WPARAM words, LPARAM control) {
            m_workbench.toolbarControls().handle(reinterpret_cast<HWND>(control), LOWORD(words),
                                                 HIWORD(words));
            return LRESULT{1};
        };
        editor().documents().create(L"A");
    }

    Editor& editor() { return m_workbench.editor(); }
    HWND make(UINT id) {
        CWnd* const control = m_workbench.toolbarControls().make(m_toolPanel, {0, 0, 100, 300}, id);
        return control == nullptr ? nullptr : control->m_hWnd;
    }
    ComboWidget& combo(HWND list) {
        return dynamic_cast<ComboWidget&>(*windows().find(list)->widget);
    }
    std::string shown(HWND list) {
        const QRUI_COMBO_CTRL_ITEM* const entry = combo(list).entry(combo(list).selected());
        return entry == nullptr ? std::string() : toUtf8(entry->text);
    }
    Texts texts(HWND list) {
        Texts found;
        for (int i = 0; i < combo(list).count(); ++i)
            found.push_back(toUtf8(combo(list).entry(i)->text));
        return found;
    }
    void setDb(const std::string& path, const Value& value) {
        drawing::setByPath(editor().documents().current()->data(), path, value);
    }
    void choose(HWND list, int index) { combo(list).choose(*windows().find(list), index); }
};

TEST_F(ToolbarControlsTest, AListShowsTheDrawingAtEveryMoment) {
    const HWND list = make(kLayers);
    EXPECT_EQ(texts(list), Texts{"0"});
    EXPECT_EQ(shown(list), "0");
    setDb("layers.Walls", Value::Table{});
    EXPECT_EQ(texts(list), (Texts{"0", "Walls"}));
    editor().set(L"CLAYER", "Walls");
    EXPECT_EQ(shown(list), "Walls");
    editor().undo();
    EXPECT_EQ(shown(list), "0");
    setDb("layers.Walls.name", "Pond");
    EXPECT_EQ(texts(list), (Texts{"0", "Pond"}));
    setDb("layers.Pond", Value());
    EXPECT_EQ(texts(list), Texts{"0"});
}

TEST_F(ToolbarControlsTest, ListsFollowTheCurrentDocument) {
    const HWND layers = make(kLayers);
    const HWND colours = make(kColours);
    editor().set(L"CECOLOR", "Red");
    editor().documents().create(L"B");
    setDb("layers.Walls", Value::Table{});
    EXPECT_EQ(texts(layers), (Texts{"0", "Walls"}));
    EXPECT_EQ(shown(colours), "ByLayer");
    editor().documents().activate(*editor().documents().find(L"A"));
    EXPECT_EQ(texts(layers), Texts{"0"});
    EXPECT_EQ(shown(colours), "Red");
    editor().documents().close(*editor().documents().current());
    editor().documents().close(*editor().documents().current());
    EXPECT_TRUE(texts(layers).empty());
    EXPECT_EQ(shown(layers), "");
}

TEST_F(ToolbarControlsTest, AChoiceIsTakenIntoEffectAndARefusedOneIsNotKept) {
    setDb("layers.Walls", Value::Table{});
    setDb("layers.Ice", Value::Table{{"frozen", true}});
    const HWND list = make(kLayers);
    choose(list, 1);
    EXPECT_EQ(editor().read(L"CLAYER"), Value("Walls"));
    choose(list, 2);
    EXPECT_EQ(editor().read(L"CLAYER"), Value("Walls"));
    EXPECT_EQ(shown(list), "Walls");
}

TEST_F(ToolbarControlsTest, AnOpenListStaysAsItIsUntilItCloses) {
    const HWND list = make(kTextStyles);
    combo(list).open(*windows().find(list));
    setDb("textStyles.Notes", Value::Table{});
    EXPECT_EQ(texts(list), Texts{"Standard"});
    combo(list).close(*windows().find(list));
    EXPECT_EQ(texts(list), (Texts{"Standard", "Notes"}));
}

TEST_F(ToolbarControlsTest, AListThatEndedIsForgotten) {
    windows().destroy(make(kLayers));
    const HWND list = make(kLayers);
    setDb("layers.Walls", Value::Table{});
    EXPECT_EQ(texts(list), (Texts{"0", "Walls"}));
}

TEST_F(ToolbarControlsTest, NothingThatChangedNothingIsNoted) {
    make(kLayers);
    journal().take();
    editor().set(L"LUNITS", 4);
    EXPECT_TRUE(journal().take("control").empty());
}

TEST_F(ToolbarControlsTest, AnUnknownControlIsNeitherMadeNorHandled) {
    EXPECT_EQ(make(1), nullptr);
    EXPECT_EQ(m_workbench.toolbarControls().make(nullptr, {}, kLayers), nullptr);
    EXPECT_FALSE(m_workbench.toolbarControls().handle(nullptr, kLayers, CBN_SELENDOK));
    EXPECT_FALSE(m_workbench.toolbarControls().handle(make(kLayers), 1, CBN_SELENDOK));
}

}  // namespace
}  // namespace workbench
