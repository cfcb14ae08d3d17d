#include "tests/layer/filter_combo_fixture.h"
#include "workbench/toolkit/popup_menus.h"

#include <hostapi/zorq/layers.h>

#include <set>

namespace {

using workbench::MenuLine;

/// Test fixture: the menu of a filter, as it opens.
class FilterMenuTest : public FilterComboTest {
protected:
    /// The menu's states by command, and those of the popups by their labels; true: enabled.
    struct States {
        std::set<std::wstring> gray;
    };
    /// The labels of the gray lines and popups of the menu of a node.
    std::set<std::wstring> grayOf(const std::wstring& node) {
        if (!isOpen())
            clickCombo();
        return grayAt(labelOf(node));
    }
    std::set<std::wstring> grayAt(CPoint place) {
        std::vector<MenuLine> menu;
        bench().toolkit().menus().setReader([&menu](const std::vector<MenuLine>& lines) {
            menu = lines;
        });
        bench().toolkit().mouse().contextMenu(tree(), place);
        bench().toolkit().menus().setReader(nullptr);
        std::set<std::wstring> gray;
        collectGray(menu, gray);
        return gray;
    }

private:
    static void collectGray(const std::vector<MenuLine>& lines, std::set<std::wstring>& gray) {
        for (const MenuLine& line : lines) {
            if ((line.flags & MF_GRAYED) != 0)
                gray.insert(line.text);
            collectGray(line.popup, gray);
        }
    }
};

}  // namespace
