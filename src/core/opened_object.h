#pragma once

#include <hostapi/vxdb18/database.h>

/// An object of the drawing that is open for reading while this lives; null if it can't be opened or
/// is of another class.
template <class Object>
class Opened {
public:
    explicit Opened(VxDbObjectId id) {
        if (vxdbOpenObject(m_object, id, VxDbOpenMode::kForRead) != Zorq::eOk)
            m_object = nullptr;
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
    ~Opened() {
        if (m_object != nullptr)
            m_object->close();
    }

    const Object* get() const { return dynamic_cast<const Object*>(m_object); }
    bool isOpen() const { return m_object != nullptr; }
    const VxDbObject* object() const { return m_object; }

private:
    VxDbObject* m_object = nullptr;  // the host's; ours to close
};
