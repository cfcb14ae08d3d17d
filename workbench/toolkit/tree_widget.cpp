#include "workbench/toolkit/tree_widget.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <cstdint>
#include <cwctype>
#include <utility>

namespace workbench {

namespace {

constexpr int kRowsPerNotch = 3;

}  // namespace

bool TreeWidget::hasStyle(DWORD style) const {
    const Window* const window = m_toolkit.windows().find(m_window);
    return window != nullptr && (window->style & style) != 0;
}

void TreeWidget::changed() {
    m_toolkit.windows().invalidate(m_window);
}

void TreeWidget::noteCount(std::size_t before) {
    m_toolkit.windows().changes().note(m_window, "items", static_cast<std::int64_t>(before),
                                       static_cast<std::int64_t>(m_items.count()));
}

HTREEITEM TreeWidget::insert(TreeItem item, HTREEITEM behind) {
    const std::size_t before = m_items.count();
    const HTREEITEM made = m_items.insert(std::move(item), behind);
    noteCount(before);
    return made;
}

bool TreeWidget::remove(HTREEITEM item) {
    const std::size_t before = m_items.count();
    if (!m_items.remove(item))
        return false;
    dropMissing();
    noteCount(before);
    return true;
}

void TreeWidget::clear() {
    const std::size_t before = m_items.count();
    m_items.clear();
    dropMissing();
    noteCount(before);
}

/// Lets go of the items that have gone.
void TreeWidget::dropMissing() {
    if (m_items.find(m_selected) == nullptr)
        select(nullptr);
    if (m_edited != nullptr && m_items.find(m_edited) == nullptr)
        endEdit(LabelEditor::End::Drop);
    scrollTo(m_top);
}

bool TreeWidget::sortChildren(HTREEITEM parent, const TreeItems::IsBefore& isBefore) {
    const bool sorted = m_items.sortChildren(parent, isBefore);
    changed();
    return sorted;
}

bool TreeWidget::setOpen(HTREEITEM item, bool open) {
    TreeItem* const found = m_items.find(item);
    if (found == nullptr || found->children.empty())
        return false;
    if (found->isOpen == open)
        return true;
    found->isOpen = open;
    m_toolkit.windows().changes().note(m_window, open ? "opened" : "closed", Value(),
                                       toUtf8(found->text));
    if (!open && m_selected != item && m_items.isWithin(m_selected, item))
        select(item);
    scrollTo(m_top);
    return true;
}

bool TreeWidget::select(HTREEITEM item) {
    const TreeItem* const after = m_items.find(item);
    if (item != nullptr && after == nullptr)
        return false;
    const TreeItem* const before = m_items.find(m_selected);
    const auto textOf = [](const TreeItem* shown) {
        return shown == nullptr ? Value() : Value(toUtf8(shown->text));
    };
    m_selected = item;
    m_toolkit.windows().changes().note(m_window, "selected", textOf(before), textOf(after));
    changed();
    return item == nullptr || ensureVisible(item);
}

bool TreeWidget::ensureVisible(HTREEITEM item) {
    if (m_items.find(item) == nullptr)
        return false;
    m_items.openAbove(item);
    const int row = rowOf(item);
    scrollTo(std::clamp(m_top, row - rowsInView() + 1, row));
    return true;
}

int TreeWidget::rowsInView() const {
    return std::max(1, m_toolkit.windows().clientRect(m_window).Height() / kTreeRowHeight);
}

void TreeWidget::scrollTo(int row) {
    const int rows = static_cast<int>(m_items.rows().size());
    m_top = std::clamp(row, 0, std::max(0, rows - rowsInView()));
    if (m_editor != nullptr && m_items.find(m_edited) != nullptr)
        m_toolkit.windows().place(m_editor->m_hWnd, partsOf(m_edited).label,
                                  SWP_NOSIZE | SWP_NOACTIVATE);
    changed();
}

void TreeWidget::setImages(HIMAGELIST images) {
    m_images = images;
    changed();
}

const SourcedPicture* TreeWidget::pictureOf(HTREEITEM item) const {
    const ImageList* const list = m_toolkit.windows().gdi().findImageList(m_images);
    const TreeItem* const shown = m_items.find(item);
    if (list == nullptr || shown == nullptr)
        return nullptr;
    return list->at(item == m_selected ? shown->selectedImage : shown->image);
}

HTREEITEM TreeWidget::firstVisible() const {
    const std::vector<HTREEITEM> rows = m_items.rows();
    const auto top = static_cast<std::size_t>(m_top);
    return top < rows.size() ? rows[top] : nullptr;
}

HTREEITEM TreeWidget::nextVisible(HTREEITEM item) const {
    const std::vector<HTREEITEM> rows = m_items.rows();
    const auto found = std::find(rows.begin(), rows.end(), item);
    return found == rows.end() || found + 1 == rows.end() ? nullptr : *(found + 1);
}

int TreeWidget::rowOf(HTREEITEM item) const {
    const std::vector<HTREEITEM> rows = m_items.rows();
    const auto found = std::find(rows.begin(), rows.end(), item);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

TreeRowParts TreeWidget::partsOf(HTREEITEM item) const {
    const int row = rowOf(item);
    if (row < 0)
        return {};
    const TreeItem& shown = *m_items.find(item);
    TreeRowSetup setup;
    setup.level = m_items.levelOf(item);
    setup.hasButton = hasStyle(TVS_HASBUTTONS) && !shown.children.empty();
    setup.hasRootLine = hasStyle(TVS_LINESATROOT);
    setup.hasPicture = m_images != nullptr;
    setup.characters = shown.text.size();
    return partsOfRow(setup, (row - m_top) * kTreeRowHeight);
}

HTREEITEM TreeWidget::itemAt(CPoint point) const {
    if (point.y < 0)
        return nullptr;
    const std::vector<HTREEITEM> rows = m_items.rows();
    const auto row = static_cast<std::size_t>(m_top + point.y / kTreeRowHeight);
    return row < rows.size() ? rows[row] : nullptr;
}

bool TreeWidget::handle(Window& /*window*/, UINT message, WPARAM wParam, LPARAM lParam,
                        LRESULT& /*answer*/) {
    switch (message) {
    case WM_LBUTTONDOWN:
        press(unpackPoint(lParam));
        return true;
    case WM_LBUTTONDBLCLK:
        toggle(itemAt(unpackPoint(lParam)));
        return true;
    case WM_RBUTTONDOWN:
        takeFocus(m_toolkit, m_window);
        return true;
    case kMouseWheel:
        scrollTo(m_top - kRowsPerNotch * static_cast<std::int16_t>(HIWORD(wParam)) / kWheelStep);
        return true;
    case kCharMessage:
        goToLetter(static_cast<wchar_t>(wParam));
        return true;
    case WM_KEYDOWN:
        if (!key(wParam) && wParam == kKeyTab)
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    case WM_SIZE:
        scrollTo(m_top);
        return true;
    default:
        return false;
    }
}

void TreeWidget::press(CPoint point) {
    const Turn turn;
    takeFocus(m_toolkit, m_window);
    // Whoever lost the keyboard may have ended the tree.
    if (m_toolkit.windows().find(m_window) == nullptr)
        return;
    const HTREEITEM item = itemAt(point);
    if (item == nullptr)
        return;
    const TreePart part = partAt(partsOf(item), point);
    if (part == TreePart::Button)
        toggle(item);
    else if (part == TreePart::Picture || part == TreePart::Label || hasStyle(TVS_FULLROWSELECT))
        select(item);
}

void TreeWidget::toggle(HTREEITEM item) {
    if (const TreeItem* const found = m_items.find(item))
        setOpen(item, !found->isOpen);
}

/// Does what a key means. False for one that means nothing here.
bool TreeWidget::key(WPARAM key) {
    switch (key) {
    case kKeyUp:
        return moveBy(-1);
    case kKeyDown:
        return moveBy(1);
    case kKeyPageUp:
        return moveBy(1 - rowsInView());
    case kKeyPageDown:
        return moveBy(rowsInView() - 1);
    case kKeyHome:
        goToRow(0);
        return true;
    case kKeyEnd:
        goToRow(static_cast<int>(m_items.rows().size()) - 1);
        return true;
    case kKeyLeft:
        goLeft();
        return true;
    case kKeyRight:
        goRight();
        return true;
    case kKeyF2:
        editLabel(m_selected);
        return true;
    default:
        return false;
    }
}

bool TreeWidget::moveBy(int rows) {
    const int row = rowOf(m_selected);
    goToRow(row < 0 ? 0 : row + rows);
    return true;
}

/// Selects the item of a row, the nearest one for a row outside.
void TreeWidget::goToRow(int row) {
    const std::vector<HTREEITEM> rows = m_items.rows();
    if (!rows.empty())
        select(
            rows[static_cast<std::size_t>(std::clamp(row, 0, static_cast<int>(rows.size()) - 1))]);
}

void TreeWidget::goLeft() {
    const TreeItem* const from = m_items.find(m_selected);
    if (from == nullptr)
        return;
    if (from->isOpen)
        setOpen(m_selected, false);
    else if (from->parent != nullptr)
        select(from->parent);
}

void TreeWidget::goRight() {
    const TreeItem* const from = m_items.find(m_selected);
    if (from == nullptr || from->children.empty())
        return;
    if (from->isOpen)
        select(from->children.front());
    else
        setOpen(m_selected, true);
}

/// To the next item in view order that begins with a letter, from the top again behind the last.
void TreeWidget::goToLetter(wchar_t letter) {
    std::vector<HTREEITEM> rows = m_items.rows();
    if (const int row = rowOf(m_selected); row >= 0)
        std::rotate(rows.begin(), rows.begin() + row + 1, rows.end());
    const auto begins = [this, letter](HTREEITEM item) {
        const std::wstring& text = m_items.find(item)->text;
        return !text.empty() && std::towlower(static_cast<std::wint_t>(text.front())) ==
                                    std::towlower(static_cast<std::wint_t>(letter));
    };
    const auto found = std::find_if(rows.begin(), rows.end(), begins);
    if (found != rows.end())
        select(*found);
}

CWnd* TreeWidget::editLabel(HTREEITEM item) {
    const Turn turn;
    const TreeItem* const found = m_items.find(item);
    if (found == nullptr || !hasStyle(TVS_EDITLABELS))
        return nullptr;
    endEdit(LabelEditor::End::Take);
    // The text that was taken may have changed the items.
    WindowSystem& windows = m_toolkit.windows();
    if (windows.find(m_window) == nullptr || !ensureVisible(item))
        return nullptr;
    WindowCreation creation;
    creation.className = "CEdit";
    creation.style = WS_CHILD | WS_VISIBLE | WS_BORDER;
    creation.rect = partsOf(item).label;
    creation.rect.right = std::max(creation.rect.right, windows.clientRect(m_window).right);
    creation.parent = m_window;
    creation.text = m_items.find(item)->text;
    creation.widget = std::make_unique<EditWidget>(m_toolkit);
    m_edited = item;
    m_editor = std::make_shared<LabelEditor>([this](LabelEditor::End end) { endEdit(end); });
    windows.create(*m_editor, std::move(creation));
    windows.setFocus(m_editor->m_hWnd);
    if (m_editor == nullptr)
        return nullptr;
    windows.widgetOf<EditWidget>(m_editor.get())->selectAll(*windows.find(m_editor->m_hWnd));
    return m_editor.get();
}

void TreeWidget::endEdit(LabelEditor::End end) {
    // Without its window the editor goes along with the tree.
    if (m_editor == nullptr || m_editor->m_hWnd == nullptr)
        return;
    const Turn turn;
    WindowSystem& windows = m_toolkit.windows();
    const HTREEITEM item = std::exchange(m_edited, nullptr);
    const std::shared_ptr<LabelEditor> editor = std::exchange(m_editor, nullptr);
    // One of its handlers may be running.
    Turn::keep(editor);
    const std::wstring text = windows.find(editor->m_hWnd)->text;
    if (windows.focus() == editor->m_hWnd)
        windows.setFocus(m_window);
    windows.destroy(editor->m_hWnd);
    const bool isTaken = end == LabelEditor::End::Take;
    if (!askToTake(item, isTaken ? text.c_str() : nullptr) || !isTaken)
        return;
    TreeItem* const still = m_items.find(item);
    if (still == nullptr || windows.find(m_window) == nullptr)
        return;
    windows.changes().note(m_window, "label", toUtf8(still->text), toUtf8(text));
    still->text = text;
}

/// Tells the parent, or the tree's own object, how the editing ended. Whether the text is welcome.
bool TreeWidget::askToTake(HTREEITEM item, const wchar_t* text) {
    WindowSystem& windows = m_toolkit.windows();
    const Window* const tree = windows.find(m_window);
    if (tree == nullptr)
        return false;
    const auto id = static_cast<std::uintptr_t>(tree->id);
    const NMTVDISPINFO info{{m_window, id, TVN_ENDLABELEDIT}, item, text};
    return windows.send(tree->parent, WM_NOTIFY, id, reinterpret_cast<LPARAM>(&info)) != 0;
}

std::string TreeWidget::describe(const Window& /*window*/) const {
    const TreeItem* const shown = m_items.find(m_selected);
    const std::string selected = shown == nullptr ? "nothing" : '"' + toUtf8(shown->text) + '"';
    return selected + " of " + std::to_string(m_items.count());
}

}  // namespace workbench
