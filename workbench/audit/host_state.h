#pragma once

#include "workbench/drawing/records/view_parameters.h"

#include <optional>
#include <string>

namespace workbench {

namespace drawing {
class Database;
}

class Workbench;

/// The state of the host as the rules ask for it.
class HostState {
public:
    explicit HostState(Workbench& workbench) : m_workbench(workbench) {}

    Workbench& workbench() const { return m_workbench; }
    bool hasDocument() const;
    /// The current drawing's database; null for none.
    const drawing::Database* drawing() const;
    /// Whether a command runs in the current document.
    bool isCommandRunning() const;
    /// A variable that holds a number; nothing if it can't be had.
    std::optional<double> number(const wchar_t* variable) const;
    /// The same as a whole number, 0 if it can't be had.
    int whole(const wchar_t* variable) const;
    /// Whether the user works on the sheet of a layout.
    bool isOnSheet() const;
    /// What the current viewport shows; null for none.
    const drawing::ViewParameters* view() const;

    // Numbers as the host writes them.

    /// A distance in the drawing's units and precision.
    std::string distanceText(double value) const;
    /// A number with the decimals of the drawing's distances.
    std::string decimalText(double value) const;
    /// An angle, in radians, in the drawing's units and precision.
    std::string angleText(double radians) const;

private:
    Workbench& m_workbench;
};

}  // namespace workbench
