#include "workbench/adapters/open_objects.h"

#include "workbench/adapters/open_background.h"
#include "workbench/adapters/open_entity.h"
#include "workbench/adapters/open_layer.h"
#include "workbench/adapters/open_layer_table.h"
#include "workbench/adapters/open_layout_viewport.h"
#include "workbench/adapters/open_sun.h"
#include "workbench/adapters/open_text_style.h"
#include "workbench/adapters/open_text_style_table.h"
#include "workbench/adapters/open_tile.h"
#include "workbench/adapters/open_view.h"
#include "workbench/adapters/open_view_table.h"

#include <algorithm>

namespace workbench {

std::unique_ptr<VxDbObject> OpenObjects::wrap(drawing::DbObject& object) {
    switch (object.kind()) {
    case drawing::RecordKind::Table:
        return wrapTable(object);
    case drawing::RecordKind::Layer:
        return std::make_unique<OpenLayer>(*this, object);
    case drawing::RecordKind::TextStyle:
        return std::make_unique<OpenTextStyle>(*this, object);
    case drawing::RecordKind::Entity:
        return std::make_unique<OpenEntity>(*this, object);
    case drawing::RecordKind::View:
        return std::make_unique<OpenView>(*this, object);
    case drawing::RecordKind::Background:
        return std::make_unique<OpenBackground>(*this, object);
    case drawing::RecordKind::Sun:
        return std::make_unique<OpenSun>(*this, object);
    case drawing::RecordKind::Viewport:
        if (static_cast<drawing::Record<drawing::Viewport>&>(object).data().isTile())
            return std::make_unique<OpenTile>(*this, object);
        return std::make_unique<OpenLayoutViewport>(*this, object);
    default:
        return std::make_unique<Opening<VxDbObject>>(*this, object);
    }
}

std::unique_ptr<VxDbObject> OpenObjects::wrapTable(drawing::DbObject& table) {
    if (table.id() == m_database.table(drawing::RecordKind::View))
        return std::make_unique<OpenViewTable>(*this, table);
    if (table.id() == m_database.table(drawing::RecordKind::Layer))
        return std::make_unique<OpenLayerTable>(*this, table);
    if (table.id() == m_database.table(drawing::RecordKind::TextStyle))
        return std::make_unique<OpenTextStyleTable>(*this, table);
    return std::make_unique<Opening<VxDbObject>>(*this, table);
}

OpenObjects::~OpenObjects() {
    for (const Entry& entry : m_open)
        entry.object->close();
}

drawing::Status OpenObjects::open(drawing::ObjectId id, drawing::OpenMode mode,
                                  VxDbObject*& object) {
    object = nullptr;
    if (mode == drawing::OpenMode::Write && !m_mayWrite())
        return drawing::Status::NotLocked;
    drawing::DbObject* opened = nullptr;
    const drawing::Status status =
        m_database.open(id, mode, drawing::ErasedObjects::Refuse, opened);
    if (status == drawing::Status::Ok) {
        m_open.push_back({wrap(*opened), opened});
        object = m_open.back().adapter.get();
    }
    return status;
}

drawing::Status OpenObjects::upgrade(drawing::DbObject& object) {
    if (object.isOpenForWrite())
        return drawing::Status::Ok;
    return m_mayWrite() ? object.upgradeOpen() : drawing::Status::NotLocked;
}

drawing::Status OpenObjects::close(const VxDbObject* adapter, drawing::DbObject& object) {
    const auto entry = std::find_if(m_open.begin(), m_open.end(), [adapter](const Entry& open) {
        return open.adapter.get() == adapter;
    });
    // Ends the adapter that is calling; it touches none of its members after this.
    const Entry ending = std::move(*entry);
    m_open.erase(entry);
    return object.close();
}

}  // namespace workbench
