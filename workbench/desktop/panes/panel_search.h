#pragma once

#include <QString>

#include <string>
#include <vector>

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

/// A tool or a control of the dashboard that a search has found.
struct SearchHit {
    QString label;          ///< As the user knows it, with the panel's title behind.
    std::wstring panel;     ///< The panel's ID.
    std::wstring item;      ///< ID of the tool; empty for a control.
    std::string control;    ///< Name of the control; empty for a tool.
    bool isAtHead = false;  ///< The name begins with what was asked for.
};

/// The tools and controls, in flyouts and on hidden panels too, whose name, ID, tooltip or panel has
/// all words of a text, without regard to case; those whose name begins with it first. None for an
/// empty text.
std::vector<SearchHit> searchPanels(Workbench& workbench, const QString& text);

}  // namespace workbench::desktop
