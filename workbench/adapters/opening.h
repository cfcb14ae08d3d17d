#pragma once

#include "workbench/adapters/host_values.h"
#include "workbench/adapters/open_objects.h"
#include "workbench/core/host_call.h"

#include <hostapi/vxdb18/database.h>

namespace workbench {

/// An opening as an object of the host's class `Host`.
template <class Host>
class Opening : public Host {
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

/// The same of a record with the members `Data`.
template <class Host, class Data>
class OpenedRecord : public Opening<Host> {
public:
    OpenedRecord(OpenObjects& owner, drawing::DbObject& object)
        : Opening<Host>(owner, object),
          m_data(static_cast<drawing::Record<Data>&>(object).data()) {}

protected:
    const Data& data() const { return m_data; }

private:
    const Data& m_data;
};

}  // namespace workbench
