#pragma once

#include "workbench/desktop/mirror/mirror_widget.h"

#include <QPointer>

namespace workbench::desktop {

/// A popup of the host's, such as the dropdown of a filter: it lies over the other parts of the window
/// that it stands in, beside the part that opened it.
class PopupMirror final : public MirrorWidget {
public:
    /// `opener` is the widget of what opened it; null for none.
    PopupMirror(Stage& stage, HWND window, QWidget* parent, MirrorWidget* opener)
        : MirrorWidget(stage, window, parent),
          m_opener(opener) {}

protected:
    QRect placeOf(const Window& window) const override;
    void showEvent(QShowEvent* event) override;

private:
    QPointer<MirrorWidget> m_opener;
};

}  // namespace workbench::desktop
