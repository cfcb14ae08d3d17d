#include "workbench/windows/window_tree_text.h"

#include "workbench/base/text.h"

#include <string>

namespace workbench {

namespace {

std::string rectText(const CRect& rect) {
    return "(" + std::to_string(rect.left) + "," + std::to_string(rect.top) + " " +
           std::to_string(rect.Width()) + "x" + std::to_string(rect.Height()) + ")";
}

/// One line: class, ID, name, text, rectangle, state, the widget's words.
std::string lineOf(const Window& window, bool hasFocus) {
    std::string line = window.className;
    if (window.id != 0)
        line += " #" + std::to_string(window.id);
    if (!window.name.empty())
        line += " [" + window.name + "]";
    if (!window.text.empty())
        line += " \"" + toUtf8(window.text) + "\"";
    line += " " + rectText(window.rect);
    if (!window.hasVisibleStyle())
        line += " hidden";
    if (!window.enabled)
        line += " disabled";
    if (hasFocus)
        line += " focus";
    const std::string words =
        window.widget == nullptr ? std::string() : window.widget->describe(window);
    return words.empty() ? line : line + " " + words;
}

void appendTree(const WindowTree& windows, HWND focus, HWND root, std::size_t depth,
                std::string& text) {
    const Window* const window = windows.find(root);
    if (window == nullptr)
        return;
    text.append(2 * depth, ' ');
    text += lineOf(*window, focus == root) + "\n";
    for (const HWND child : window->children)
        appendTree(windows, focus, child, depth + 1, text);
}

}  // namespace

std::string treeText(const WindowTree& windows, HWND focus) {
    std::string text;
    for (const HWND top : windows.topWindows())
        appendTree(windows, focus, top, 0, text);
    return text;
}

}  // namespace workbench
