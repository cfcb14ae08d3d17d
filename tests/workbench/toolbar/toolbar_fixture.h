#pragma once

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolbar/toolbar_list.h"

#include <string>

namespace workbench {

/// A document, and the toolbar's lists as rows of their table.
class ToolbarTest : public EditorTest {
protected:
    // IDs of controls.
    static constexpr unsigned kLayers = 1111;
    static constexpr unsigned kLinetypes = 2222;
    static constexpr unsigned kColours = 3333;
    static constexpr unsigned kLineweights = 4444;
    static constexpr unsigned kPresets = 6666;
    static constexpr unsigned kViews = 6667;
    static constexpr unsigned kScales = 7777;
    static constexpr unsigned kPlotStyles = 8888;
    static constexpr unsigned kCoordinateSystems = 9999;
    static constexpr unsigned kDimensionStyles = 11111;
    static constexpr unsigned kTextStyles = 11117;
    static constexpr unsigned kUndo = 44445;

    ToolbarTest() { newDocument(); }

    ToolbarScope scope() { return {editor(), m_bench.menu()}; }
    ToolbarEntries entries(unsigned id) { return findToolbarControl(id)->entries(scope()); }
    std::wstring current(unsigned id) { return findToolbarControl(id)->current(scope()); }
    void choose(unsigned id, const std::wstring& text) {
        findToolbarControl(id)->apply(scope(), text);
    }
    void setDb(const std::string& path, const Value& value) {
        drawing::setByPath(editor().documents().current()->data(), path, value);
    }
    Value db(const std::string& path) {
        return drawing::getByPath(editor().documents().current()->data(), path);
    }
    bool holds(unsigned id, const std::wstring& text) {
        return indexOfEntry(entries(id), text) >= 0;
    }
};

}  // namespace workbench
