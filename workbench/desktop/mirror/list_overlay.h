#pragma once

#include <hostapi/types.h>

#include <QListWidget>
#include <QObject>
#include <QPointer>

namespace workbench {
class ComboWidget;
struct Window;
}  // namespace workbench

namespace workbench::desktop {

class MirrorWidget;
struct Stage;

/// The list that has dropped down from a field: at most one at a time. A click chooses; a click
/// elsewhere closes it; the keyboard stays with the field.
class ListOverlay : public QObject {
public:
    explicit ListOverlay(Stage& stage);
    ~ListOverlay() override;

    /// A window has changed: shows, refreshes or hides its list. `field` is its widget, null for none.
    void update(HWND window, MirrorWidget* field);
    /// Takes the colours anew.
    void restyle();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ComboWidget* openCombo() const;
    void show(const ComboWidget& combo, MirrorWidget& field);
    void fillList(const ComboWidget& combo);
    void choose(int row);
    void hide();

    Stage& m_stage;
    HWND m_field = nullptr;        // whose list is on show; null for none
    QPointer<QListWidget> m_list;  // belongs to the window that it stands in
};

}  // namespace workbench::desktop
