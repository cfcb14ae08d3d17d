#include "workbench/editor/object_adapters.h"

#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/viewport.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr unsigned kHandleBits = 32;

}  // namespace

VxDbObjectId toHostId(drawing::ObjectId id) {
    return {(static_cast<std::uint64_t>(id.database()) << kHandleBits) | id.handle()};
}

drawing::ObjectId fromHostId(VxDbObjectId id) {
    return drawing::ObjectId(static_cast<std::uint32_t>(id.number >> kHandleBits),
                             static_cast<std::uint32_t>(id.number));
}

Zorq::ErrorStatus toHostStatus(drawing::Status status) {
    return static_cast<Zorq::ErrorStatus>(status);
}

/// An opening of a record as an object of the host's class `Host`.
template <class Host, class Data>
class OpenObjects::OpenedRecord : public Host {
public:
    OpenedRecord(OpenObjects& owner, drawing::DbObject& object)
        : m_owner(owner),
          m_object(object),
          m_data(static_cast<drawing::Record<Data>&>(object).data()) {}

    // VxDbObject:
    Zorq::ErrorStatus close() override {
        HostCall call("VxDbObject::close");
        // A fault tells of a failure, but the opening ends: nobody could close it afterwards.
        const Zorq::ErrorStatus status = toHostStatus(m_owner.close(this, m_object));
        return call.returns(call.failed() ? call.status(status) : status);
    }

protected:
    const Data& data() const { return m_data; }

private:
    OpenObjects& m_owner;
    drawing::DbObject& m_object;
    const Data& m_data;
};

/// An object of a kind that modules only open and close.
class OpenObjects::Opening final : public VxDbObject {
public:
    Opening(OpenObjects& owner, drawing::DbObject& object) : m_owner(owner), m_object(object) {}

    // VxDbObject:
    Zorq::ErrorStatus close() override {
        HostCall call("VxDbObject::close");
        return call.returns(toHostStatus(m_owner.close(this, m_object)));
    }

private:
    OpenObjects& m_owner;
    drawing::DbObject& m_object;
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
        VxDbObjectId background() const override {
            HostCall call("VxDbViewport::background");
            return toHostId(data().background);
        }
        VxDbObjectId sunId() const override {
            HostCall call("VxDbViewport::sunId");
            return toHostId(data().sun);
        }
    };

    switch (object.kind()) {
    case drawing::RecordKind::Background:
        return std::make_unique<OpenBackground>(*this, object);
    case drawing::RecordKind::Sun:
        return std::make_unique<OpenSun>(*this, object);
    case drawing::RecordKind::Viewport:
        if (static_cast<drawing::Record<Viewport>&>(object).data().isTile())
            return std::make_unique<OpenTile>(*this, object);
        return std::make_unique<OpenLayoutViewport>(*this, object);
    default:
        return std::make_unique<Opening>(*this, object);
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

bool DatabaseAdapter::tilemode() const {
    HostCall call("VxDbDatabase::tilemode");
    if (call.failed())
        return call.returns(false);
    return call.returns(drawing::activeLayout(m_database).isNull());
}

}  // namespace workbench
