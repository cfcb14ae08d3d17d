#pragma once

#include "workbench/drawing/database/object_id.h"

#include <QEventLoop>
#include <QObject>
#include <functional>
#include <optional>
#include <vector>

namespace workbench {
class Document;
}

namespace workbench::desktop {

class DocumentTabs;
class DrawingView;
struct Stage;

/// Has the user pick entities in the drawing in front when the host asks for some: clicks and windows
/// add, with shift they take away; Enter takes them, Escape cancels, and nothing else of the window
/// answers meanwhile. While nothing runs, clicks make the selection that a command may use.
class EntityPicker final : private QObject {
public:
    using Entities = std::vector<drawing::ObjectId>;

    /// `tell` says something in the status bar. Both must outlive it.
    EntityPicker(Stage& stage, DocumentTabs& tabs, std::function<void(const QString&)> tell);
    EntityPicker(const EntityPicker&) = delete;
    EntityPicker& operator=(const EntityPicker&) = delete;
    ~EntityPicker() override;

    /// Whether entities are asked for.
    bool isAsking() const { return m_view != nullptr; }

private:
    std::optional<Entities> ask(Document& document);
    void take(Document& document, const Entities& picked, bool removes);
    void select(Document& document, const Entities& picked, bool removes);
    // QObject:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void endByKey(int key);

    Stage& m_stage;
    DocumentTabs& m_tabs;
    std::function<void(const QString&)> m_tell;
    DrawingView* m_view = nullptr;  // not owned; null: nobody asks
    Entities m_chosen;
    QEventLoop m_loop;  // runs while somebody asks
};

}  // namespace workbench::desktop
