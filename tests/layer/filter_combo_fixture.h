#pragma once

#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/core/answers.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/dropdowns.h"
#include "workbench/toolkit/mouse.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/combo.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

inline constexpr const char* kFilterControl = "LayerFilterComboControl";

/// Test fixture: two layer filter combos on one panel, and a user's verbs for them. The drawing has the
/// layers 0 (current), Walls, Doors and Roof, the property filter "House" that shows Walls and Doors,
/// the group "Top" with Roof, and in it the group "Inner" with Doors.
class FilterComboTest : public support::ControlBench {
protected:
    using Texts = std::vector<std::wstring>;
    using Calls = std::vector<std::string>;

    void SetUp() override {
        useMenuOf(kFilterControl, 2);
        showControl(kFilterControl);
        for (const char* layer : {"Walls", "Doors", "Roof"})
            setDb(std::string("layers.") + layer, workbench::Value::Table{});
        using workbench::Value;
        setDb("filters.House",
              Value::Table{{"kind", "property"}, {"expression", R"(NAME=="Walls,Doors")"}});
        setDb("filters.Top", Value::Table{{"kind", "group"}, {"layers", Value::List{"Roof"}}});
        setDb("filters.Inner",
              Value::Table{{"kind", "group"}, {"layers", Value::List{"Doors"}}, {"parent", "Top"}});
        tellCommandEnded(L"LAYER");
        takeJournal();
    }

    HWND second() { return control(kFilterControl, 2); }
    static CQrUiComboCtrl& listOf(HWND combo) {
        return *dynamic_cast<CQrUiComboCtrl*>(CWnd::FromHandle(combo));
    }
    /// What a combo shows, and nothing unless that is its one and selected entry.
    std::wstring shown(HWND combo = nullptr) {
        const CQrUiComboCtrl& list = listOf(combo == nullptr ? window() : combo);
        if (list.GetCount() != 1 || list.GetCurSel() != 0)
            return {};
        return list.GetItem(0)->text;
    }
    void tellCommandEnded(const wchar_t* name) { send(1730, 0, reinterpret_cast<LPARAM>(name)); }
    void answer(const std::string& kind, const workbench::Value& value) {
        bench().answers().queue(kind, value);
    }

    // The dropdown

    void clickCombo() {
        workbench::gestures::clickAt(bench().toolkit(), window(), {5, 5});
        settle();
    }
    HWND tree() { return workbench::findDroppedTree(bench().windows(), window()); }
    HWND check() { return workbench::findButtonBeside(bench().windows(), tree()); }
    bool isOpen() { return tree() != nullptr; }
    workbench::TreeWidget& treeWidget() {
        return *bench().windows().widgetOf<workbench::TreeWidget>(CWnd::FromHandle(tree()));
    }
    /// The texts of the rows that show, each with a blank for each item above it.
    Texts rows() {
        Texts texts;
        const workbench::TreeItems& items = treeWidget().items();
        for (const HTREEITEM row : items.rows())
            texts.push_back(std::wstring(static_cast<std::size_t>(items.levelOf(row)), L' ') +
                            items.find(row)->text);
        return texts;
    }
    bool isInTree(const std::wstring& text) { return node(text) != nullptr; }
    /// The item of a text; null for none.
    HTREEITEM node(const std::wstring& text) { return nodeBelow(nullptr, text); }
    std::wstring selectedNode() {
        const workbench::TreeItem* item = treeWidget().items().find(treeWidget().selected());
        return item == nullptr ? std::wstring() : item->text;
    }
    CPoint labelOf(const std::wstring& text) {
        const HTREEITEM item = node(text);
        treeWidget().ensureVisible(item);
        const CRect label = treeWidget().partsOf(item).label;
        return {label.left + 2, label.top + 2};
    }
    void clickNode(const std::wstring& text) {
        workbench::gestures::clickAt(bench().toolkit(), tree(), labelOf(text));
        settle();
    }
    /// Chooses from the menu of a node, which the dropdown is opened for if need be.
    void choose(const std::wstring& text, const std::string& path) {
        if (!isOpen())
            clickCombo();
        answer("menu", path);
        bench().toolkit().mouse().contextMenu(tree(), labelOf(text));
        settle();
    }
    /// Types a text over the label that is edited, and a key.
    void editLabel(const std::wstring& text, const std::string& key) {
        workbench::gestures::replaceText(bench().toolkit(), text);
        workbench::gestures::pressKey(bench().toolkit(), key);
        settle();
    }

    std::wstring rootName() { return workbench::toWide(db("filters.root.name").asString()); }
    bool isStored(const std::string& filter) {
        const workbench::Value names = db("filters");
        return std::any_of(
            names.asList().begin(), names.asList().end(),
            [&filter](const workbench::Value& name) { return name.asString() == filter; });
    }

private:
    HTREEITEM nodeBelow(HTREEITEM parent, const std::wstring& text) {
        const workbench::TreeItems& items = treeWidget().items();
        for (const HTREEITEM child : items.childrenOf(parent)) {
            if (items.find(child)->text == text)
                return child;
            if (const HTREEITEM found = nodeBelow(child, text))
                return found;
        }
        return nullptr;
    }
};
