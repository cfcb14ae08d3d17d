#pragma once

#include <QString>
#include <string>
#include <vector>

namespace workbench {
class Toolkit;
}

namespace workbench::desktop {

/// A tool or a control of the dashboard that a search has found.
struct SearchHit {
    QString label;        ///< As the user sees it; the ID only of a tool without a name.
    QString panelTitle;   ///< Of the panel that it stands on.
    std::wstring panel;   ///< The panel's ID.
    std::wstring item;    ///< ID of the tool; empty for a control.
    std::string control;  ///< Name of the control; empty for a tool.
};

/// The tools and controls on all panels, hidden panels and flyouts too, that have all words of a
/// text in their name, ID, tooltips or panel title, without regard to case. Those whose name begins
/// with the text come first, then those whose name has all the words; otherwise they come in the
/// order of the panels. Tools that the dashboard hides are left out. None for a blank text.
std::vector<SearchHit> searchPanels(const Toolkit& toolkit, const QString& text);

}  // namespace workbench::desktop
