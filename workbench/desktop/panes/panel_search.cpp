#include "workbench/desktop/panes/panel_search.h"

#include "workbench/base/text.h"
#include "workbench/core/workbench.h"
#include "workbench/desktop/look/text.h"
#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/windows/window_system.h"

#include <QStringList>

#include <algorithm>

namespace workbench::desktop {

namespace {

/// A thing that can be found, with all the words that it is found by.
struct Candidate {
    SearchHit hit;
    QString name;
    QString words;
};

class Search {
public:
    Search(Workbench& workbench, const QString& text)
        : m_windows(workbench.windows()),
          m_text(text.trimmed()),
          m_words(m_text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {}

    std::vector<SearchHit> run() {
        if (m_words.isEmpty())
            return {};
        for (const CQrUiToolPanelItem* item : allItems())
            addTool(*item);
        for (const CQrUiPanel* panel : allPanels())
            addControls(*panel);
        std::stable_sort(m_hits.begin(), m_hits.end(), [](const SearchHit& a, const SearchHit& b) {
            return a.isAtHead && !b.isAtHead;
        });
        return std::move(m_hits);
    }

private:
    void addTool(const CQrUiToolPanelItem& item) {
        const CQrUiToolPanel* const toolPanel = toolPanelOf(item);
        const CQrUiPanel* const panel =
            toolPanel == nullptr ? nullptr : panelAbove(toolPanel->m_hWnd);
        const bool isTool = item.GetType() == kItemButton || item.GetType() == kItemFlyout;
        const Window* const place =
            toolPanel == nullptr ? nullptr : m_windows.find(toolPanel->m_hWnd);
        // The head of a custom control is found as the control.
        if (!isTool || panel == nullptr || place == nullptr || place->parent != panel->m_hWnd)
            return;
        Candidate candidate;
        candidate.name = toQt(shownName(item));
        candidate.words = candidate.name + QLatin1Char(' ') + toQt(knownId(item));
        candidate.hit.item = knownId(item);
        take(std::move(candidate), *panel);
    }

    void addControls(const CQrUiPanel& panel) {
        for (const HWND below : m_windows.descendants(panel.m_hWnd)) {
            const Window& window = *m_windows.find(below);
            const Window* const parent = m_windows.find(window.parent);
            if (window.name.empty() || parent == nullptr || parent->className != "CQrUiToolPanel")
                continue;
            Candidate candidate;
            candidate.name = headOf(window);
            candidate.words = candidate.name + QLatin1Char(' ') +
                              toQt(std::string_view(window.name)) + tipsOf(below);
            candidate.hit.control = window.name;
            take(std::move(candidate), panel);
        }
    }

    /// What a custom control calls itself: the name of its first item, up to the colon.
    static QString headOf(const Window& window) {
        const auto* control = dynamic_cast<const CQrUiToolPanel*>(window.object);
        for (int i = 0; control != nullptr && i < control->GetToolPanelItemCount(); ++i) {
            const QString name = toQt(shownName(*control->GetToolPanelItem(i)));
            if (!name.isEmpty())
                return name.section(QLatin1Char(':'), 0, 0);
        }
        return toQt(std::string_view(window.name));
    }

    QString tipsOf(HWND control) const {
        QString tips;
        for (const HWND part : m_windows.descendants(control)) {
            const Window* const window = m_windows.find(part);
            const auto* widget = dynamic_cast<const ControlWidget*>(window->widget.get());
            if (widget != nullptr)
                tips += QLatin1Char(' ') + toQt(widget->tip());
        }
        return tips;
    }

    void take(Candidate candidate, const CQrUiPanel& panel) {
        const QString title = toQt(panel.GetWindowText());
        const QString words = candidate.words + QLatin1Char(' ') + title;
        const bool hasAll = std::all_of(
            m_words.begin(), m_words.end(),
            [&words](const QString& word) { return words.contains(word, Qt::CaseInsensitive); });
        if (!hasAll)
            return;
        candidate.hit.label = candidate.name + QStringLiteral(" \u2013 ") + title;
        candidate.hit.panel = toWide(m_windows.find(panel.m_hWnd)->name);
        candidate.hit.isAtHead = candidate.name.startsWith(m_text, Qt::CaseInsensitive);
        m_hits.push_back(std::move(candidate.hit));
    }

    const WindowSystem& m_windows;
    const QString m_text;
    const QStringList m_words;
    std::vector<SearchHit> m_hits;
};

}  // namespace

std::vector<SearchHit> searchPanels(Workbench& workbench, const QString& text) {
    return Search(workbench, text).run();
}

}  // namespace workbench::desktop
