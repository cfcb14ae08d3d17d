#include "workbench/editor/object_adapters.h"

#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr unsigned kHandleBits = 32;

/// A walk over the views as they were when it began; one that is erased meanwhile can't be opened.
class ViewTableWalk final : public VxDbViewTableIterator {
public:
    ViewTableWalk(OpenObjects& objects, bool atStart) : m_objects(objects) {
        m_ids = objects.database().ids(drawing::RecordKind::View);
        if (!atStart)
            std::reverse(m_ids.begin(), m_ids.end());
    }

    // VxDbViewTableIterator:
    bool done() const override { return m_place >= m_ids.size(); }
    void step() override { ++m_place; }
    Zorq::ErrorStatus getRecordId(VxDbObjectId& id) const override {
        HostCall call("VxDbViewTableIterator::getRecordId");
        if (call.failed() || done())
            return call.returns(call.status(toHostStatus(drawing::Status::unknownId)));
        id = toHostId(m_ids[m_place]);
        return call.returns(Zorq::eOk);
    }
    Zorq::ErrorStatus getRecord(VxDbViewTableRecord*& record, VxDbOpenMode mode) const override {
        HostCall call("VxDbViewTableIterator::getRecord", {static_cast<int>(mode)});
        record = nullptr;
        if (call.failed() || done())
            return call.returns(call.status(toHostStatus(drawing::Status::unknownId)));
        VxDbObject* object = nullptr;
        const drawing::Status status = m_objects.open(m_ids[m_place], openModeOf(mode), object);
        record = static_cast<VxDbViewTableRecord*>(object);
        return call.returns(toHostStatus(status));
    }

private:
    OpenObjects& m_objects;
    std::vector<drawing::ObjectId> m_ids;
    std::size_t m_place = 0;
};

}  // namespace

VxDbObjectId toHostId(drawing::ObjectId id) {
    return {(static_cast<std::uint64_t>(id.database()) << kHandleBits) | id.handle()};
}

drawing::ObjectId fromHostId(VxDbObjectId id) {
    return drawing::ObjectId(static_cast<std::uint32_t>(id.number >> kHandleBits),
                             static_cast<std::uint32_t>(id.number));
}

drawing::OpenMode openModeOf(VxDbOpenMode mode) {
    return mode == VxDbOpenMode::kForWrite ? drawing::OpenMode::Write : drawing::OpenMode::Read;
}

Zorq::ErrorStatus toHostStatus(drawing::Status status) {
    return static_cast<Zorq::ErrorStatus>(status);
}

/// An opening as an object of the host's class `Host`.
template <class Host>
class OpenObjects::Opening : public Host {
public:
    Opening(OpenObjects& owner, drawing::DbObject& object) : m_owner(owner), m_object(object) {}

    // VxDbObject:
    Zorq::ErrorStatus close() override {
        HostCall call("VxDbObject::close");
        // A fault tells of a failure, but the opening ends: nobody could close it afterwards.
        const Zorq::ErrorStatus status = toHostStatus(m_owner.close(this, m_object));
        return call.returns(call.failed() ? call.status(status) : status);
    }

protected:
    OpenObjects& owner() const { return m_owner; }

private:
    OpenObjects& m_owner;
    drawing::DbObject& m_object;
};

/// The same of a record.
template <class Host, class Data>
class OpenObjects::OpenedRecord : public Opening<Host> {
public:
    OpenedRecord(OpenObjects& owner, drawing::DbObject& object)
        : Opening<Host>(owner, object),
          m_data(static_cast<drawing::Record<Data>&>(object).data()) {}

protected:
    const Data& data() const { return m_data; }

private:
    const Data& m_data;
};

std::unique_ptr<VxDbObject> OpenObjects::wrap(drawing::DbObject& object) {
    using drawing::Background;
    using drawing::Sun;
    using drawing::Viewport;

    class OpenBackground final : public OpenedRecord<VxDbBackground, Background> {
    public:
        using OpenedRecord::OpenedRecord;
        int type() const override {
            HostCall call("VxDbBackground::type");
            return call.returns(data().type);
        }
    };
    class OpenSun final : public OpenedRecord<VxDbSun, Sun> {
    public:
        using OpenedRecord::OpenedRecord;
        bool skyIllumination() const override {
            HostCall call("VxDbSun::skyIllumination");
            return call.returns(data().sky.illumination);
        }
    };
    class OpenTile final : public OpenedRecord<VxDbViewportTableRecord, Viewport> {
    public:
        using OpenedRecord::OpenedRecord;
        VxDbObjectId background() const override {
            HostCall call("VxDbViewportTableRecord::background");
            return toHostId(data().background);
        }
        VxDbObjectId sunId() const override {
            HostCall call("VxDbViewportTableRecord::sunId");
            return toHostId(data().sun);
        }
    };
    class OpenLayoutViewport final : public OpenedRecord<VxDbViewport, Viewport> {
    public:
        using OpenedRecord::OpenedRecord;
        bool isLocked() const override {
            HostCall call("VxDbViewport::isLocked");
            return call.returns(!call.failed() && data().locked);
        }
        VxDbObjectId background() const override {
            HostCall call("VxDbViewport::background");
            return toHostId(data().background);
        }
        VxDbObjectId sunId() const override {
            HostCall call("VxDbViewport::sunId");
            return toHostId(data().sun);
        }
    };

    class OpenView final : public OpenedRecord<VxDbViewTableRecord, drawing::View> {
    public:
        using OpenedRecord::OpenedRecord;
        Zorq::ErrorStatus getName(VxString& name) const override {
            HostCall call("VxDbSymbolTableRecord::getName");
            if (call.failed())
                return call.returns(call.status(toHostStatus(drawing::Status::unknownId)));
            name = toWide(data().name);
            return call.returns(Zorq::eOk);
        }
    };
    class OpenViewTable final : public Opening<VxDbViewTable> {
    public:
        using Opening::Opening;
        Zorq::ErrorStatus newIterator(VxDbViewTableIterator*& iterator, bool atStart,
                                      bool skipErased) const override {
            HostCall call("VxDbViewTable::newIterator", {atStart, skipErased});
            iterator = nullptr;
            if (call.failed())
                return call.returns(call.status(toHostStatus(drawing::Status::unknownId)));
            iterator = new ViewTableWalk(owner(), atStart);
            return call.returns(Zorq::eOk);
        }
    };

    if (object.id() == m_database.table(drawing::RecordKind::View))
        return std::make_unique<OpenViewTable>(*this, object);
    switch (object.kind()) {
    case drawing::RecordKind::View:
        return std::make_unique<OpenView>(*this, object);
    case drawing::RecordKind::Background:
        return std::make_unique<OpenBackground>(*this, object);
    case drawing::RecordKind::Sun:
        return std::make_unique<OpenSun>(*this, object);
    case drawing::RecordKind::Viewport:
        if (static_cast<drawing::Record<Viewport>&>(object).data().isTile())
            return std::make_unique<OpenTile>(*this, object);
        return std::make_unique<OpenLayoutViewport>(*this, object);
    default:
        return std::make_unique<Opening<VxDbObject>>(*this, object);
    }
}

OpenObjects::~OpenObjects() {
    for (const Entry& entry : m_open)
        entry.object->close();
}

drawing::Status OpenObjects::open(drawing::ObjectId id, drawing::OpenMode mode,
                                  VxDbObject*& object) {
    object = nullptr;
    drawing::DbObject* opened = nullptr;
    const drawing::Status status =
        m_database.open(id, mode, drawing::ErasedObjects::Refuse, opened);
    if (status == drawing::Status::ok) {
        m_open.push_back({wrap(*opened), opened});
        object = m_open.back().adapter.get();
    }
    return status;
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
