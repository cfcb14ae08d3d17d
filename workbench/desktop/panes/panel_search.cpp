#include "workbench/desktop/panes/panel_search.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/window_names.h"
#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QStringList>
#include <algorithm>
#include <optional>
#include <utility>

namespace workbench::desktop {

namespace {

/// How well something fits, the best first.
enum class Rank { NameBegins, NameHasAll, HasAll };

struct Ranked {
    Rank rank;
    SearchHit hit;
};

/// What was typed.
struct Query {
    QString text;
    QStringList words;

    bool isIn(const QString& place) const {
        return std::all_of(words.begin(), words.end(), [&place](const QString& word) {
            return place.contains(word, Qt::CaseInsensitive);
        });
    }
    /// Nothing for what doesn't fit.
    std::optional<Rank> rank(const QString& name, const QString& everything) const {
        if (name.startsWith(text, Qt::CaseInsensitive))
            return Rank::NameBegins;
        if (isIn(name))
            return Rank::NameHasAll;
        return isIn(everything) ? std::optional(Rank::HasAll) : std::nullopt;
    }
};

bool isHidden(const CQrUiToolPanelItem& item) {
    const CQrUiToolPanelItem* each = &item;
    for (; each != nullptr; each = each->m_record->flyout) {
        if ((each->GetState() & kItemHidden) != 0)
            return true;
    }
    return false;
}

/// The panel that an item stands on directly, or in a flyout; null for an item of a control.
const CQrUiPanel* panelOf(const WindowSystem& windows, const CQrUiToolPanelItem& item) {
    const CQrUiToolPanel* const toolPanel = toolPanelOf(item);
    const Window* const window = toolPanel == nullptr ? nullptr : windows.find(toolPanel->m_hWnd);
    const CQrUiPanel* const panel =
        window == nullptr ? nullptr : panelAbove(windows, window->handle);
    return panel != nullptr && panel->m_hWnd == window->parent ? panel : nullptr;
}

/// The names of the items that a custom control has, such as its icon.
QStringList itemNames(const Toolkit& toolkit, const Window& control) {
    QStringList names;
    const auto* panel = dynamic_cast<const CQrUiToolPanel*>(control.object);
    for (int index = 0; panel != nullptr && index < panel->GetToolPanelItemCount(); ++index)
        names.append(toQt(shownName(toolkit, *panel->GetToolPanelItem(index))));
    names.removeAll(QString());
    return names;
}

/// The tooltips of a window and all below it.
QStringList tipsWithin(const WindowSystem& windows, HWND root) {
    QStringList tips;
    std::vector<HWND> all = windows.descendants(root);
    all.push_back(root);
    for (const HWND each : all) {
        const auto* widget = dynamic_cast<const ControlWidget*>(windows.find(each)->widget.get());
        if (widget != nullptr && !widget->tip().empty())
            tips.append(toQt(widget->tip()));
    }
    return tips;
}

/// Without the signs that mark access keys in some menu data.
QString withoutMarks(const QString& text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isSign = text[i] == QLatin1Char('&') && i + 1 < text.size();
        const bool isMark =
            isSign && (text[i + 1].isLetterOrNumber() || text[i + 1] == QLatin1Char('&'));
        plain += text[isMark ? ++i : i];
    }
    return plain;
}

QStringList describeTool(const Toolkit& toolkit, const CQrUiToolPanelItem& item, SearchHit& hit) {
    hit.item = knownId(item);
    const QString name = withoutMarks(toQt(shownName(toolkit, item)));
    const QString id = toQt(hit.item);
    hit.label = name.isEmpty() ? id : name;
    return {name, id, toQt(item.GetID())};
}

/// Fills in what is known of an item, and gathers all that it can be found by.
QStringList describeItem(const Toolkit& toolkit, const CQrUiToolPanelItem& item, SearchHit& hit) {
    const WindowSystem& windows = toolkit.windows();
    const Window* const control =
        item.GetType() == kItemControl ? windows.find(item.GetControl()) : nullptr;
    if (control == nullptr)
        return describeTool(toolkit, item, hit);
    hit.control = control->name;
    QStringList places = itemNames(toolkit, *control) + tipsWithin(windows, control->handle);
    hit.label = withoutMarks(nameOfWhole(toolkit, *control));
    places.append({hit.label, toQt(std::string_view(control->name))});
    return places;
}

bool canBeFound(const CQrUiToolPanelItem& item) {
    const int type = item.GetType();
    return type == kItemButton || type == kItemFlyout ||
           (type == kItemControl && item.GetControl() != nullptr);
}

}  // namespace

std::vector<SearchHit> searchPanels(const Toolkit& toolkit, const QString& text) {
    const QString simple = text.simplified();
    const Query query{simple, simple.split(QLatin1Char(' '), Qt::SkipEmptyParts)};
    std::vector<Ranked> found;
    for (const CQrUiToolPanelItem* item :
         query.words.isEmpty() ? std::vector<CQrUiToolPanelItem*>() : allItems(toolkit.windows())) {
        const CQrUiPanel* const panel = panelOf(toolkit.windows(), *item);
        if (panel == nullptr || !canBeFound(*item) || isHidden(*item))
            continue;
        SearchHit hit;
        hit.panel = panel->GetID();
        hit.panelTitle = withoutMarks(toQt(panel->GetWindowText()));
        QStringList places = describeItem(toolkit, *item, hit);
        places.append(hit.panelTitle);
        // A line end between them, so that no word is found across two.
        const auto rank = query.rank(hit.label, places.join(QLatin1Char('\n')));
        if (rank.has_value())
            found.push_back({*rank, std::move(hit)});
    }
    std::stable_sort(found.begin(), found.end(), [](const Ranked& left, const Ranked& right) {
        return left.rank < right.rank;
    });
    std::vector<SearchHit> hits;
    for (Ranked& each : found)
        hits.push_back(std::move(each.hit));
    return hits;
}

}  // namespace workbench::desktop
