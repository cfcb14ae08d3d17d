#pragma once

#include "workbench/adapters/layer_filter_manager.h"
#include "workbench/adapters/open_objects.h"
#include "workbench/drawing/database/database.h"
#include "workbench/editor/variables/variable_definition.h"

#include <hostapi/vxdb18/database.h>

namespace workbench {

/// The database of a document, as modules see it.
class DatabaseAdapter final : public VxDbDatabase {
public:
    /// All of them must outlive it; `variables` are the values that live with the document. It asks
    /// them only when it is asked itself.
    DatabaseAdapter(const drawing::Database& database, const VariableValues& variables,
                    OpenObjects& objects)
        : m_database(database),
          m_variables(variables),
          m_objects(objects),
          m_filters(objects) {}

    const drawing::Database& database() const { return m_database; }
    LayerFilterManager& filters() { return m_filters; }

    // VxDbDatabase:
    bool tilemode() const override;
    VxDbObjectId paperSpaceVportId() const override;
    double stepSize() const override;
    double stepsPerSec() const override;
    bool cameraDisplay() const override;
    VxDbObjectId clayer() const override;
    Zorq::ErrorStatus getSymbolTable(VxDbViewTable*& table, VxDbOpenMode mode) override;
    Zorq::ErrorStatus getSymbolTable(VxDbLayerTable*& table, VxDbOpenMode mode) override;
    Zorq::ErrorStatus getSymbolTable(VxDbTextStyleTable*& table, VxDbOpenMode mode) override;

private:
    template <class Table>
    Zorq::ErrorStatus openTable(drawing::RecordKind kind, Table*& table, VxDbOpenMode mode);

    const drawing::Database& m_database;
    const VariableValues& m_variables;
    OpenObjects& m_objects;
    LayerFilterManager m_filters;
};

}  // namespace workbench
