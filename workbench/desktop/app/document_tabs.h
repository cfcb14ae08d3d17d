#pragma once

#include "workbench/desktop/look/look.h"

#include <QTabWidget>

namespace workbench {
class Document;
}

namespace workbench::desktop {

class DrawingView;
struct Stage;

/// The open documents, a tab each, with their drawings. A click on a tab brings the document to the
/// front.
class DocumentTabs final : public QTabWidget {
public:
    explicit DocumentTabs(Stage& stage);

    /// Takes over which documents are open and which is in front, and how far locked layers fade.
    void refresh();
    void setLook(const Look& look);
    DrawingView& viewAt(int index) const;

private:
    int indexOf(const Document* document) const;
    void activate(int index);
    void close(int index);

    Stage& m_stage;
    bool m_refreshing = false;  // a tab's change is not the user's
};

}  // namespace workbench::desktop
