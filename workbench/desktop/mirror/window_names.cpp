#include "workbench/desktop/mirror/window_names.h"

#include "workbench/desktop/look/text.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <vector>

namespace workbench::desktop {

namespace {

struct ClassRow {
    const char* className;
    const char* name;
};
/// Windows that bear no text of their own.
constexpr ClassRow kClasses[] = {
    {"CDockBar", "Dock"},
    {"CQrUiPalette", "Palette"},
    {"CQrUiPanelSet", "Panels"},
    {"CQrUiToolPanel", "Tools"},
    {"DrawingView", "Drawing"},
    {"CommandLine", "Command line"},
    {"CQrUiCtrlContainer", "Fields"},
    {"CEdit", "Label"},
    {"CTreeCtrl", "Tree"},
};

/// The name of the picture or button at the head of a custom control.
QString nameOfItem(const Toolkit& toolkit, const Window& window) {
    const auto* panel = dynamic_cast<const CQrUiToolPanel*>(window.object);
    if (panel == nullptr)
        return {};
    for (int i = 0; i < panel->GetToolPanelItemCount(); ++i) {
        const CQrUiToolPanelItem& item = *panel->GetToolPanelItem(i);
        const std::wstring name = shownName(toolkit, item);
        if (item.GetType() != kItemControl && !name.empty())
            return toQt(name);
    }
    return {};
}

/// A tooltip is a name up to its first line, colon or bracket; behind that it
/// tells values and advice.
QString headOf(const QString& tip) {
    const QString line = tip.section(QLatin1Char('\n'), 0, 0);
    return line.section(QLatin1Char(':'), 0, 0).section(QLatin1String(" ("), 0, 0).trimmed();
}

/// Controls that the host or a module names for programs only.
constexpr ClassRow kControls[] = {
    {"3DNavViewComboCtrl", "Views"},
    {"DimStyleControl", "Dimension style"},
    {"LayerFilterComboControl", "Layer filter"},
    {"LayerFilterComboControl.dropdown", "Layer filters"},
    {"LayerFilterComboControl.tree", "Layer filters"},
    {"MldStyleControl", "Multileader style"},
    {"OPTColorControl", "Colour"},
    {"RedoSkinnyButtonControl", "Redo"},
    {"RefblknameControl", "Reference block"},
    {"TblStyleControl", "Table style"},
    {"TxtStyleControl", "Text style"},
    {"UndoSkinnyButtonControl", "Undo"},
};

/// A name for programs in words: "LayerControl" is "Layer", "LineWeightControl" "Line weight".
QString inWords(QString name) {
    for (const QLatin1String end : {QLatin1String("Control"), QLatin1String("Ctrl")}) {
        if (name.endsWith(end) && name.size() > end.size())
            name.chop(end.size());
    }
    QString words;
    for (const QChar letter : name) {
        const bool begins = !words.isEmpty() && letter.isUpper() && words.back().isLower();
        words += begins ? QLatin1Char(' ') + QString(letter.toLower()) : QString(letter);
    }
    return words;
}

QString knownName(const std::string& control) {
    for (const ClassRow& row : kControls) {
        if (control == row.className)
            return QString::fromLatin1(row.name);
    }
    return inWords(toQt(std::string_view(control)));
}

bool isCombo(const Window& window) {
    return dynamic_cast<const ComboWidget*>(window.widget.get()) != nullptr;
}

/// The tooltip of a window's first part that has one.
QString firstTip(const WindowSystem& windows, const std::vector<HWND>& parts) {
    for (const HWND part : parts) {
        const auto* widget = dynamic_cast<const ControlWidget*>(windows.find(part)->widget.get());
        if (widget != nullptr && !widget->tip().empty())
            return toQt(widget->tip());
    }
    return {};
}

/// What the custom control that a window is, or stands in, is called there.
QString nameOfControl(const Toolkit& toolkit, const Window& window) {
    const WindowSystem& windows = toolkit.windows();
    for (const Window* above = &window; above != nullptr; above = windows.find(above->parent)) {
        if (above->className != "CQrUiToolPanel")
            continue;
        if (!isCustomControl(windows, above->handle))
            return {};
        if (above == &window)
            return nameOfWhole(toolkit, window);
        const QString item = nameOfItem(toolkit, *above);
        // The head of a list is another tool, such as a step back.
        return item.isEmpty() || isCombo(window) ? knownName(above->name) : headOf(item);
    }
    return {};
}

/// Whether a window is a control, or a part of a dropdown, that only programs know by name.
bool isNamedForPrograms(const WindowSystem& windows, const Window& window) {
    return !window.name.empty() &&
           (windows.popupAbove(window.handle) != nullptr || isCombo(window));
}

QString nameOfClass(const Window& window) {
    for (const ClassRow& row : kClasses) {
        if (window.className == row.className)
            return QString::fromLatin1(row.name);
    }
    return {};
}

bool isValue(const Window& window) {
    return dynamic_cast<const EditWidget*>(window.widget.get()) != nullptr;
}

}  // namespace

QString nameOfWhole(const Toolkit& toolkit, const Window& control) {
    const WindowSystem& windows = toolkit.windows();
    const std::vector<HWND> parts = windows.descendants(control.handle);
    const bool hasList = std::any_of(
        parts.begin(), parts.end(), [&windows](HWND part) { return isCombo(*windows.find(part)); });
    if (hasList)
        return knownName(control.name);
    const QString item = nameOfItem(toolkit, control);
    const QString tip = item.isEmpty() ? firstTip(windows, parts) : item;
    return tip.isEmpty() ? knownName(control.name) : headOf(tip);
}

WindowNames namesOf(Toolkit& toolkit, const Window& window) {
    const auto* control = dynamic_cast<const ControlWidget*>(window.widget.get());
    const QString tip = control == nullptr ? QString() : toQt(control->tip());
    const QString whole = nameOfControl(toolkit, window);
    WindowNames names;
    if (!window.text.empty() && !isValue(window))
        names.name = toQt(window.text);
    else if (isValue(window) && !tip.isEmpty())
        names.name = headOf(tip);
    else if (!whole.isEmpty())
        names.name = whole;
    else if (!tip.isEmpty())
        names.name = headOf(tip);
    else if (isNamedForPrograms(toolkit.windows(), window))
        names.name = knownName(window.name);
    else
        names.name = nameOfClass(window);
    if (names.name.isEmpty() && window.object == &toolkit.frame().frame())
        names.name = QStringLiteral("Host window");
    if (names.name.isEmpty())
        names.name = toQt(std::string_view(window.className));
    if (tip != names.name)
        names.description = tip;
    return names;
}

}  // namespace workbench::desktop
