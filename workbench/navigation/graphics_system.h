#pragma once

#include "workbench/drawing/object_id.h"
#include "workbench/drawing/records/view_parameters.h"

#include <hostapi/zorq/views.h>

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

namespace workbench {

class Document;
class DocumentList;

/// A view that shows what its viewport shows, for as long as the drawing is open.
class LiveView final : public VxGsView {
public:
    LiveView(DocumentList& documents, drawing::ObjectId viewport)
        : m_documents(documents),
          m_viewport(viewport) {}
    // VxGsView:
    bool isPerspective() const override;

private:
    DocumentList& m_documents;
    drawing::ObjectId m_viewport;
};

/// A view with parameters of its own.
class TemporaryView final : public VxGsView {
public:
    void setParameters(const drawing::ViewParameters& parameters) { m_parameters = parameters; }
    // VxGsView:
    bool isPerspective() const override;

private:
    drawing::ViewParameters m_parameters;
};

/// The views of the graphics system: a live one for each viewport that shows more than plain lines
/// or was asked for, and temporary ones between their making and their end.
class GraphicsSystem final : public VxGsManager, public VxGsClassFactory {
public:
    explicit GraphicsSystem(DocumentList& documents) : m_documents(documents) {}
    GraphicsSystem(const GraphicsSystem&) = delete;
    GraphicsSystem& operator=(const GraphicsSystem&) = delete;

    /// The live view of a viewport of the current document's space; null if it has none and none is
    /// to be made, or if there is no such viewport.
    VxGsView* liveView(int viewportNumber, bool create);
    /// Copies a viewport's parameters into a temporary view. False for another view, and without
    /// such a viewport.
    bool copyParameters(int viewportNumber, VxGsView* view);
    /// How many temporary views were not deleted.
    std::size_t temporaryCount() const { return m_temporary.size(); }

    // VxGsManager:
    VxGsClassFactory* classFactory() override;
    // VxGsClassFactory:
    VxGsView* createView(const VxGsViewDescriptor& descriptor) override;
    void deleteView(VxGsView* view) override;

private:
    drawing::ObjectId findViewport(int number) const;
    TemporaryView* findTemporary(const VxGsView* view) const;

    DocumentList& m_documents;
    std::map<drawing::ObjectId, std::unique_ptr<LiveView>> m_live;
    std::vector<std::unique_ptr<TemporaryView>> m_temporary;
};

}  // namespace workbench
