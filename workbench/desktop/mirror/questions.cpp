#include "workbench/desktop/mirror/questions.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <QCursor>
#include <QMenu>
#include <QMessageBox>
#include <QToolTip>
#include <algorithm>
#include <iterator>
#include <optional>

namespace workbench::desktop {

namespace {

void fillMenu(QMenu& menu, const std::vector<MenuLine>& lines) {
    for (const MenuLine& line : lines) {
        // A host's text may hold the sign that marks an access key elsewhere.
        const QString text = toQt(line.text).replace(QLatin1Char('&'), QStringLiteral("&&"));
        if (line.separator) {
            menu.addSeparator();
        } else if (!line.children.empty()) {
            QMenu* const popup = menu.addMenu(text);
            popup->setEnabled(!line.disabled);
            fillMenu(*popup, line.children);
        } else {
            QAction* const action = menu.addAction(text);
            action->setData(line.command);
            action->setEnabled(!line.disabled);
            action->setCheckable(line.checked);
            action->setChecked(line.checked);
        }
    }
}

std::optional<UINT> chooseFromMenu(const Stage& stage, const std::vector<MenuLine>& lines) {
    if (stage.pump.isHeld())
        return {};
    QMenu menu;
    fillMenu(menu, lines);
    const QAction* const chosen = menu.exec(stage.pressedAt);
    if (chosen == nullptr)
        return {};
    return chosen->data().toUInt();
}

constexpr UINT kBoxKinds = 0xf;  // the bits of a box's type that tell its buttons
constexpr UINT kIconShift = 4;   // behind them as many tell its icon

QMessageBox::StandardButtons buttonsOf(UINT type) {
    constexpr QMessageBox::StandardButtons kButtons[] = {
        QMessageBox::Ok,
        QMessageBox::Ok | QMessageBox::Cancel,
        QMessageBox::Ok,
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
        QMessageBox::Yes | QMessageBox::No,
    };
    const UINT kind = type & kBoxKinds;
    return kind < std::size(kButtons) ? kButtons[kind] : QMessageBox::Ok;
}

/// The icon that a box's type asks for.
QMessageBox::Icon iconOf(UINT type) {
    constexpr QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Critical,
                                            QMessageBox::Question, QMessageBox::Warning,
                                            QMessageBox::Information};
    const UINT kind = type >> kIconShift & kBoxKinds;
    return kind < std::size(kIcons) ? kIcons[kind] : QMessageBox::NoIcon;
}

int askBox(const Stage& stage, QWidget& owner, const std::wstring& text, UINT type) {
    if (stage.pump.isHeld())
        return MessageBoxes::kOk;
    QMessageBox box(iconOf(type), owner.windowTitle(), toQt(text), buttonsOf(type), &owner);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return MessageBoxes::kYes;
    case QMessageBox::No:
        return MessageBoxes::kNo;
    case QMessageBox::Cancel:
        return MessageBoxes::kCancel;
    default:
        return MessageBoxes::kOk;
    }
}

bool isDisabledAt(const Stage& stage, HWND window) {
    if (!stage.windows.takesInput(window))
        return true;
    const Window* const found = stage.windows.find(window);
    const auto* panel = found == nullptr ? nullptr : dynamic_cast<CQrUiToolPanel*>(found->object);
    if (panel == nullptr)
        return false;
    for (int i = 0; i < panel->GetToolPanelItemCount(); ++i) {
        const CQrUiToolPanelItem& item = *panel->GetToolPanelItem(i);
        CRect rect;
        item.GetRect(rect, kItemClientRect);
        if (rect.PtInRect(stage.toolkit.mouse().point()))
            return (item.GetState() & kItemDisabled) != 0;
    }
    return false;
}

/// The variable that a slider sets, as its user would type it; empty for one that sets none, such as
/// the lens, which belongs to the view.
QString variableOf(const WindowSystem& windows, HWND window) {
    struct Row {
        const char* control;
        const char* variable;
    };
    constexpr Row kRows[] = {
        {"LayerLockTransparencySliderControl", "LAYLOCKFADECTL"},
        {"3DNavStepSizeSliderControl", "STEPSIZE"},
        {"3DNavStepsPerSecSliderControl", "STEPSPERSEC"},
    };
    const Window* const found = windows.find(window);
    if (found == nullptr || dynamic_cast<SliderWidget*>(found->widget.get()) == nullptr)
        return {};
    const std::string control = windows.ownerName(window);
    for (const Row& row : kRows) {
        if (control == row.control)
            return QString::fromLatin1(row.variable);
    }
    return {};
}

void showTip(const Stage& stage, HWND window, const std::wstring& text) {
    if (text.empty()) {
        QToolTip::hideText();
        return;
    }
    QString shown = toQt(text);
    if (const QString variable = variableOf(stage.windows, window); !variable.isEmpty())
        shown += QStringLiteral("\nVariable: ") + variable;
    const QString reason = stage.whyDisabled ? stage.whyDisabled(window) : QString();
    if (!reason.isEmpty() && isDisabledAt(stage, window))
        shown += QLatin1Char('\n') + reason;
    QToolTip::showText(QCursor::pos(), shown);
}

}  // namespace

Questions::Questions(Stage& stage, QWidget& owner) : m_stage(stage) {
    stage.toolkit.menus().setPresenter(
        [&stage](const std::vector<MenuLine>& lines) { return chooseFromMenu(stage, lines); });
    stage.toolkit.boxes().setPresenter([&stage, &owner](const std::wstring& text, UINT type) {
        return askBox(stage, owner, text, type);
    });
    stage.toolkit.toolTips().setPresenter(
        [&stage](HWND window, const std::wstring& text) { showTip(stage, window, text); });
}

Questions::~Questions() {
    m_stage.toolkit.menus().setPresenter(nullptr);
    m_stage.toolkit.boxes().setPresenter(nullptr);
    m_stage.toolkit.toolTips().setPresenter(nullptr);
}

}  // namespace workbench::desktop
