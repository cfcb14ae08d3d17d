#pragma once

#include "workbench/drawing/database.h"

#include <hostapi/vxdb18/database.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace workbench {

class Document;

/// The ID by which modules know an object, and back.
VxDbObjectId toHostId(drawing::ObjectId id);
drawing::ObjectId fromHostId(VxDbObjectId id);
drawing::OpenMode openModeOf(VxDbOpenMode mode);
/// The status that modules get for one of the database's.
Zorq::ErrorStatus toHostStatus(drawing::Status status);

/// The objects of one drawing as modules have opened them: each opening is an object of the host's
/// class for its kind, from `open` to its `close`.
class OpenObjects {
public:
    explicit OpenObjects(drawing::Database& database) : m_database(database) {}
    OpenObjects(const OpenObjects&) = delete;
    OpenObjects& operator=(const OpenObjects&) = delete;
    /// Closes what modules left open.
    ~OpenObjects();

    /// Opens an object; null unless the status is ok.
    drawing::Status open(drawing::ObjectId id, drawing::OpenMode mode, VxDbObject*& object);
    const drawing::Database& database() const { return m_database; }
    /// How many openings were not closed.
    std::size_t count() const { return m_open.size(); }

private:
    template <class Host>
    class Opening;
    template <class Host, class Data>
    class OpenedRecord;

    std::unique_ptr<VxDbObject> wrap(drawing::DbObject& object);
    /// Ends an opening: its adapter is gone afterwards.
    drawing::Status close(const VxDbObject* adapter, drawing::DbObject& object);

    drawing::Database& m_database;
    struct Entry {
        std::unique_ptr<VxDbObject> adapter;
        drawing::DbObject* object;  // not owned
    };
    std::vector<Entry> m_open;
};

/// The database of a document, as modules see it.
class DatabaseAdapter final : public VxDbDatabase {
public:
    explicit DatabaseAdapter(Document& document) : m_document(document) {}

    const drawing::Database& database() const;

    // VxDbDatabase:
    bool tilemode() const override;
    VxDbObjectId paperSpaceVportId() const override;
    double stepSize() const override;
    double stepsPerSec() const override;
    bool cameraDisplay() const override;
    Zorq::ErrorStatus getSymbolTable(VxDbViewTable*& table, VxDbOpenMode mode) override;

private:
    Document& m_document;
};

}  // namespace workbench
