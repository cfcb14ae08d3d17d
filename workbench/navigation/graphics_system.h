#pragma once

#include "workbench/drawing/database/object_id.h"
#include "workbench/drawing/database/undo_log.h"
#include "workbench/drawing/records/view_parameters.h"

#include <hostapi/zorq/views.h>

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace workbench {

class Document;
class DocumentList;
class GraphicsSystem;

/// A view as modules see it, wherever its parameters are kept.
class ParameterView : public VxGsView {
public:
    // VxGsView:
    bool isPerspective() const override;
    VxGePoint3d eyePosition() const override;
    VxGePoint3d target() const override;
    VxGeVector3d upVector() const override;
    double fieldWidth() const override;
    double fieldHeight() const override;
    void setView(const VxGePoint3d& eye, const VxGePoint3d& target, const VxGeVector3d& up,
                 double fieldWidth, double fieldHeight, bool perspective) override;
    void update() override;

    /// What the view shows; that of a new view if the viewport behind it is gone.
    virtual drawing::ViewParameters parameters() const = 0;
    virtual void setParameters(const drawing::ViewParameters& parameters) = 0;
};

/// A view that shows what its viewport shows, for as long as the drawing is open.
class LiveView final : public ParameterView {
public:
    LiveView(GraphicsSystem& graphics, drawing::ObjectId viewport)
        : m_graphics(graphics),
          m_viewport(viewport) {}
    // ParameterView:
    drawing::ViewParameters parameters() const override;
    void setParameters(const drawing::ViewParameters& parameters) override;

private:
    GraphicsSystem& m_graphics;
    drawing::ObjectId m_viewport;
};

/// A view with parameters of its own.
class TemporaryView final : public ParameterView {
public:
    // ParameterView:
    drawing::ViewParameters parameters() const override { return m_parameters; }
    void setParameters(const drawing::ViewParameters& parameters) override {
        m_parameters = parameters;
    }

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
    /// Writes the parameters of one of the views to a viewport, which keeps its lens, and tells of
    /// the view that changed. False for another view, and without such a viewport.
    bool applyParameters(int viewportNumber, const VxGsView* view);
    /// The lens of a viewport of the current document's space, in millimetres; nothing without such
    /// a viewport.
    std::optional<double> lens(int viewportNumber) const;
    /// Sets it; nobody is told. False without such a viewport and for a lens that isn't above 0.
    bool setLens(int viewportNumber, double lens);
    /// Records a viewport's view: what is changed of it from now on, up to the next call, is taken back
    /// by one undo, which gives the recorded view back, unless something else is changed in between.
    void beginUndoStep(int viewportNumber);

    /// What a viewport shows; null for none.
    const drawing::ViewParameters* viewOf(drawing::ObjectId viewport) const;
    /// Changes what a viewport shows, which then shows no named view any more. Nobody is told. False
    /// without the viewport and while it can't be changed.
    bool changeView(drawing::ObjectId viewport, const drawing::ViewParameters& view);
    /// How many temporary views were not deleted.
    std::size_t temporaryCount() const { return m_temporary.size(); }

    // VxGsManager:
    VxGsClassFactory* classFactory() override;
    // VxGsClassFactory:
    VxGsView* createView(const VxGsViewDescriptor& descriptor) override;
    void deleteView(VxGsView* view) override;

private:
    /// The changes of one view that one undo takes back.
    struct UndoStep {
        drawing::ObjectId viewport;
        std::unique_ptr<drawing::UndoRecord> recorded;  // null once the log has it
        std::size_t group = 0;  // of the drawing's undo log; 0: nothing has changed yet
    };

    drawing::ObjectId findViewport(int number) const;
    bool isOfUndoStep(drawing::ObjectId viewport) const;
    void joinUndoStep(drawing::ObjectId viewport, drawing::UndoLog& log, std::size_t groupBefore);
    TemporaryView* findTemporary(const VxGsView* view) const;
    const ParameterView* findOwn(const VxGsView* view) const;

    DocumentList& m_documents;
    std::map<drawing::ObjectId, std::unique_ptr<LiveView>> m_live;
    std::vector<std::unique_ptr<TemporaryView>> m_temporary;
    std::optional<UndoStep> m_undoStep;
};

}  // namespace workbench
