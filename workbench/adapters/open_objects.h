#pragma once

#include "workbench/drawing/database/database.h"

#include <hostapi/vxdb18/database.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace workbench {

/// The objects of one drawing as modules have opened them: each opening is an object of the host's
/// class for its kind, from `open` to its `close`.
class OpenObjects {
public:
    /// `mayWrite` tells whether the document is locked for writing now.
    OpenObjects(drawing::Database& database, std::function<bool()> mayWrite)
        : m_database(database),
          m_mayWrite(std::move(mayWrite)) {}
    OpenObjects(const OpenObjects&) = delete;
    OpenObjects& operator=(const OpenObjects&) = delete;
    /// Closes what modules left open.
    ~OpenObjects();

    /// Opens an object; null unless the status is ok.
    drawing::Status open(drawing::ObjectId id, drawing::OpenMode mode, VxDbObject*& object);
    /// Ends an opening: its adapter is gone afterwards.
    drawing::Status close(const VxDbObject* adapter, drawing::DbObject& object);
    /// Turns an opening for reading into one for writing; one for writing stays as it is.
    drawing::Status upgrade(drawing::DbObject& object);
    /// Changes a record as an opening for writing would, without handing one out.
    template <class Data, class Change>
    drawing::Status change(drawing::ObjectId id, Change change) {
        if (!m_mayWrite())
            return drawing::Status::NotLocked;
        drawing::Writing<Data> writing(m_database, id);
        if (writing)
            change(*writing);
        return writing.status();
    }
    const drawing::Database& database() const { return m_database; }
    /// How many openings were not closed.
    std::size_t count() const { return m_open.size(); }

private:
    std::unique_ptr<VxDbObject> wrap(drawing::DbObject& object);
    std::unique_ptr<VxDbObject> wrapTable(drawing::DbObject& table);

    drawing::Database& m_database;
    std::function<bool()> m_mayWrite;
    struct Entry {
        std::unique_ptr<VxDbObject> adapter;
        drawing::DbObject* object;  // not owned
    };
    std::vector<Entry> m_open;
};

}  // namespace workbench
