#pragma once

#include "workbench/adapters/host_values.h"
#include "workbench/adapters/open_objects.h"
#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/dependent_name.h"

#include <hostapi/vxdb18/database.h>

namespace workbench {

/// An opening as an object of the host's class `Host`.
template <class Host>
class Opening : public Host {
public:
    Opening(OpenObjects& owner, drawing::DbObject& object) : m_owner(owner), m_object(object) {}

    // VxDbObject:
    VxDbObjectId objectId() const override {
        HostCall call("VxDbObject::objectId");
        const VxDbObjectId id = call.failed() ? VxDbObjectId() : toHostId(m_object.id());
        call.returns(id.number);
        return id;
    }
    Zorq::ErrorStatus upgradeOpen() override {
        HostCall call("VxDbObject::upgradeOpen");
        if (call.failed())
            return call.returns(call.status(toHostStatus(drawing::Status::WasOpenForRead)));
        return call.returns(toHostStatus(m_owner.upgrade(m_object)));
    }
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

/// The same of a record with the members `Data`.
template <class Host, class Data>
class OpenedRecord : public Opening<Host> {
public:
    OpenedRecord(OpenObjects& owner, drawing::DbObject& object)
        : Opening<Host>(owner, object),
          m_record(static_cast<drawing::Record<Data>&>(object)) {}

protected:
    const Data& data() const { return m_record.data(); }
    drawing::ObjectId id() const { return m_record.id(); }
    bool isWritable() const { return m_record.isWritable(); }
    /// The members, to be changed; only while the record is open for writing.
    Data& edit() { return m_record.edit(); }

private:
    drawing::Record<Data>& m_record;
};

/// The same of a record of a symbol table. What comes from a referenced drawing bears that drawing's
/// name before a bar.
template <class Host, class Data>
class OpenedSymbol : public OpenedRecord<Host, Data> {
public:
    using OpenedRecord<Host, Data>::OpenedRecord;

    // VxDbSymbolTableRecord:
    Zorq::ErrorStatus getName(VxString& name) const override {
        HostCall call("VxDbSymbolTableRecord::getName");
        if (call.failed())
            return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
        name = toWide(this->data().name);
        return call.returns(Zorq::eOk);
    }
    bool isDependent() const override {
        HostCall call("VxDbSymbolTableRecord::isDependent");
        return call.returns(!call.failed() && drawing::isDependentName(this->data().name));
    }
};

}  // namespace workbench
