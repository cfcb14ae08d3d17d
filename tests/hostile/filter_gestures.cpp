#include "tests/hostile/filter_gestures.h"

#include "tests/hostile/host.h"
#include "workbench/base/value.h"
#include "workbench/drawing/path_access.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/dropdowns.h"
#include "workbench/toolkit/mouse.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/tree_widget.h"

#include <algorithm>

namespace hostile {

namespace {

namespace gestures = workbench::gestures;
using gestures::GestureError;
using workbench::TreeWidget;

constexpr const char* kFilter = "Struck";

/// A property filter of this name, whatever became of the last one.
void addFilter() {
    workbench::Document* const document = editor().documents().current();
    if (document == nullptr)
        throw GestureError("there is no drawing");
    using workbench::Value;
    const std::string path = std::string("filters.") + kFilter;
    const Value names = workbench::drawing::getByPath(document->data(), "filters");
    if (std::count(names.asList().begin(), names.asList().end(), Value(kFilter)) != 0)
        workbench::drawing::setByPath(document->data(), path, Value());
    workbench::drawing::setByPath(
        document->data(), path, Value::Table{{"kind", "property"}, {"expression", R"(NAME=="*")"}});
}

/// A combo whose tree is open.
class OpenTree {
public:
    OpenTree(const std::string& control, int number) {
        addFilter();
        const HWND combo = named(control, number);
        if (findDroppedTree(host().windows(), combo) != nullptr)
            click(combo);  // what is open from before knows nothing of the filter
        click(combo);
        m_tree = findDroppedTree(host().windows(), combo);
        if (m_tree == nullptr)
            throw GestureError("the tree of " + control + " does not open");
    }

    HWND window() const { return m_tree; }
    /// On the label of the filter.
    CPoint place() const {
        auto* const widget = host().windows().widgetOf<TreeWidget>(CWnd::FromHandle(m_tree));
        for (const HTREEITEM item : widget->items().rows()) {
            if (widget->items().find(item)->text != L"Struck")
                continue;
            const CRect label = widget->partsOf(item).label;
            return {label.left + 2, label.top + 2};
        }
        throw GestureError("the tree does not show the filter");
    }

private:
    static void click(HWND combo) {
        gestures::clickAt(host().toolkit(), combo, {5, 5});
        letRun();
    }

    HWND m_tree = nullptr;
};

void choose(const OpenTree& tree, const char* path) {
    host().answers().queue("menu", path);
    host().toolkit().mouse().contextMenu(tree.window(), tree.place());
    letRun();
    host().answers().take("menu");
}

}  // namespace

std::vector<Gesture> filterGestures(const std::string& control, int number,
                                    const std::string& text) {
    std::vector<Gesture> all;
    const auto add = [&](const std::string& verb, auto&& make) {
        all.push_back(
            {verb + " in " + text, [control, number, make] { make(OpenTree(control, number)); }});
    };
    add("apply a filter", [](const OpenTree& tree) {
        gestures::clickAt(host().toolkit(), tree.window(), tree.place());
        letRun();
    });
    add("rename a filter", [](const OpenTree& tree) {
        choose(tree, "Rename");
        gestures::replaceText(host().toolkit(), L"Renamed");
        gestures::pressKey(host().toolkit(), "enter");
        letRun();
    });
    for (const char* path : {"Visibility/Freeze", "Convert to Group Filter", "Delete"}) {
        add(std::string("choose ") + path, [path](const OpenTree& tree) { choose(tree, path); });
    }
    return all;
}

}  // namespace hostile
