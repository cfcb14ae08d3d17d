#pragma once

#include "workbench/adapters/host_values.h"
#include "workbench/adapters/open_objects.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/database/database.h"

#include <hostapi/vxdb18/database.h>

#include <cstddef>
#include <vector>

namespace workbench {

/// A walk as an object of the host's class `Host`: over the records as they were when it began. One
/// that is erased meanwhile can't be opened any more.
template <class Host>
class SymbolTableWalk : public Host {
public:
    /// `objects` must outlive it.
    SymbolTableWalk(OpenObjects& objects, drawing::RecordKind kind)
        : m_objects(objects),
          m_kind(kind) {}

    // VxDbSymbolTableIterator:
    void start(bool atBeginning, bool skipErased) override {
        HostCall call("VxDbSymbolTableIterator::start", {atBeginning, skipErased});
        startAt(atBeginning, skipErased);
    }
    bool done() const override { return m_place >= m_ids.size(); }
    void step(bool forward, bool skipErased) override {
        if (done())
            return;
        move(forward);
        passOver(forward, skipErased);
    }
    Zorq::ErrorStatus getRecordId(VxDbObjectId& id) const override {
        HostCall call("VxDbSymbolTableIterator::getRecordId");
        if (call.failed() || done())
            return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
        id = toHostId(here());
        return call.returns(Zorq::eOk);
    }

    /// As `start`, but not called by a module.
    void startAt(bool atBeginning, bool skipErased) {
        m_ids = m_objects.database().ids(m_kind, drawing::ErasedObjects::Accept);
        m_place = atBeginning ? 0 : m_ids.size() - 1;
        passOver(atBeginning, skipErased);
    }

protected:
    OpenObjects& objects() const { return m_objects; }
    /// The record that the walk stands at; only while it isn't over.
    drawing::ObjectId here() const { return m_ids[m_place]; }

private:
    /// Whether the walk leaves a record out, erased or not.
    virtual bool leavesOut(const drawing::DbObject& /*record*/) const { return false; }

    // The place before the first record is the largest number, so that it too is past the end.
    void move(bool forward) { m_place = forward ? m_place + 1 : m_place - 1; }
    void passOver(bool forward, bool skipErased) {
        while (!done() && isPassedOver(skipErased))
            move(forward);
    }
    bool isPassedOver(bool skipErased) const {
        const drawing::DbObject& record = *m_objects.database().peek(here());
        return (skipErased && record.isErased()) || leavesOut(record);
    }

    OpenObjects& m_objects;
    drawing::RecordKind m_kind;
    std::vector<drawing::ObjectId> m_ids;  // erased ones too
    std::size_t m_place = 0;
};

/// Hands a new walk out as `newIterator` of a table does.
template <class Walk, class Host>
Zorq::ErrorStatus handOutWalk(HostCall& call, OpenObjects& objects, Host*& iterator, bool atStart,
                              bool skipErased) {
    iterator = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    auto* walk = new Walk(objects);
    walk->startAt(atStart, skipErased);
    iterator = walk;
    return call.returns(Zorq::eOk);
}

}  // namespace workbench
