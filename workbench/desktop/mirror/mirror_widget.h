#pragma once

#include <hostapi/types.h>

#include <QColor>
#include <QPointer>
#include <QWidget>
#include <optional>
#include <vector>

namespace workbench {
struct Window;
}

namespace workbench::desktop {

class ItemWidget;
struct Stage;

/// Shows one window of the workbench's window tree, and turns what the user does with mouse and
/// keyboard into the input messages that a script's gestures are.
class MirrorWidget : public QWidget {
public:
    MirrorWidget(Stage& stage, HWND window, QWidget* parent);

    HWND handle() const { return m_handle; }
    Stage& stage() const { return m_stage; }
    /// The window, null once it has gone.
    Window* host() const;
    /// Takes place, texts and items from the window, and draws it again.
    void refresh();
    /// Asks the window once more for the colour behind it, as after a change of the theme.
    void forgetBackground() { m_backgroundAsked = false; }
    /// The item of a tool panel at a point; null for none.
    ItemWidget* itemAt(QPoint point) const;
    const std::vector<ItemWidget*>& items() const { return m_items; }
    /// The item that has the keyboard, by its mark; null for none.
    ItemWidget* itemWithKeyboard() const;
    /// Tells assistive programs of that item, unless it is the one that they were told of last.
    void announceItem();

protected:
    /// Where the widget is to be in its parent.
    virtual QRect placeOf(const Window& window) const;

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent* event) override;

private:
    void refreshItems(const Window& window);
    void hoverItem(QPoint point);
    std::optional<QColor> background();

    Stage& m_stage;
    const HWND m_handle;
    std::vector<ItemWidget*> m_items;  // children; by index of the item
    QPointer<ItemWidget> m_announced;  // null: none since the keyboard came
    int m_wheelRest = 0;               // of turns that are less than a notch
    bool m_backgroundAsked = false;
    std::optional<QColor> m_background;
};

}  // namespace workbench::desktop
