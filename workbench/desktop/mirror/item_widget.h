#pragma once

#include <hostapi/types.h>

#include <QWidget>

class CQrUiToolPanelItem;

namespace workbench::desktop {

struct Stage;

/// One item of a tool panel: a button, a flyout, a picture or a separator. The mouse goes through it
/// to the tool panel's window, whose affair it is.
class ItemWidget final : public QWidget {
public:
    /// The item at an index of the tool panel with this window.
    ItemWidget(Stage& stage, HWND toolPanel, int index, QWidget* parent);

    /// The item that it shows now; null if it has gone.
    CQrUiToolPanelItem* item() const;
    /// Takes place, texts and state from the item.
    void refresh();
    /// Whether the keyboard marks it: Enter clicks it then.
    bool isMarked() const;
    /// Whether the mouse is over it.
    void setHovered(bool hovered);
    Stage& stage() const { return m_stage; }
    HWND toolPanel() const { return m_toolPanel; }
    /// Marks it for a while, as what a search has found.
    void flash();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Stage& m_stage;
    const HWND m_toolPanel;
    const int m_index;
    bool m_hovered = false;
    bool m_flashing = false;
};

}  // namespace workbench::desktop
