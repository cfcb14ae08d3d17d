#include "workbench/desktop/mirror/questions.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
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
    // A part of the window that it opens on, or nobody who reads the window would come to it; and it
    // may go together with that part.
    auto* const opener = dynamic_cast<MirrorWidget*>(QApplication::widgetAt(stage.pressedAt));
    const QPointer<QMenu> menu = new QMenu(opener);
    fillMenu(*menu, lines);
    const QAction* const chosen = menu->exec(stage.pressedAt);
    const auto command = chosen == nullptr ? std::nullopt : std::optional(chosen->data().toUInt());
    delete menu;
    return command;
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

/// The item of a tool panel that the mouse is over; null for none.
const CQrUiToolPanelItem* itemUnderMouse(const Stage& stage, HWND window) {
    const Window* const found = stage.windows.find(window);
    auto* panel = found == nullptr ? nullptr : dynamic_cast<CQrUiToolPanel*>(found->object);
    for (int i = 0; panel != nullptr && i < panel->GetToolPanelItemCount(); ++i) {
        const CQrUiToolPanelItem& item = *panel->GetToolPanelItem(i);
        CRect rect;
        item.GetRect(rect, kItemClientRect);
        if (rect.PtInRect(stage.toolkit.mouse().point()))
            return &item;
    }
    return nullptr;
}

/// Empty for a part that can be used.
QString reasonFor(const Stage& stage, HWND window) {
    const CQrUiToolPanelItem* const item = itemUnderMouse(stage, window);
    const bool isDisabled = !stage.windows.takesInput(window) ||
                            (item != nullptr && (item->GetState() & kItemDisabled) != 0);
    return isDisabled && stage.whyDisabled ? stage.whyDisabled(window, item) : QString();
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
    if (const QString reason = reasonFor(stage, window); !reason.isEmpty())
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
