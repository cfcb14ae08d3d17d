#pragma once

#include "layer/filter_images.h"

#include <hostapi/vxly.h>

#include <memory>

class VxApDocument;

/// The one object through which the filter controls see and change the host's layer filters. It has a
/// copy of the current document's tree, and every operation looks its filter up there by name, without
/// regard to case.
///
/// What a refresh or an operation takes out of the tree lives on until the outermost call into the module
/// returns, because the host may be walking over layers with it.
class CVxDaLayerFilterMgr {
public:
    // The operations on one layer.
    class VxDaFilterPropOp;
    class VxDaFilterLockPropOp;
    class VxDaFilterVisOnPropOp;
    class VxDaFilterVisFrozenPropOp;
    class VxDaFilterVpPropOp;
    class VxDaFilterIsoGrpAllVpPropOp;
    class VxDaFilterIsoGrpActiveVpPropOp;
    class VxDaFilterPropLyToGrpOp;

    CVxDaLayerFilterMgr() = default;
    CVxDaLayerFilterMgr(const CVxDaLayerFilterMgr&) = delete;
    CVxDaLayerFilterMgr& operator=(const CVxDaLayerFilterMgr&) = delete;
    ~CVxDaLayerFilterMgr();

    /// The head of the copy; null before the first refresh and after a failed one.
    VxLyLayerFilter* root() const { return m_root.get(); }
    /// The filter in force, which may be null.
    VxLyLayerFilter* current() const { return m_current; }
    FilterImages& images() { return m_images; }

    // The copy

    /// Reads the filters of the current document anew.
    void refreshFilters();
    /// Reads the filters of a database anew. Returns 0 on failure: without a database or a filter
    /// manager the copy stays as it was, otherwise it is empty.
    int loadFilters(VxDbDatabase* database);
    /// Stores the copy in the current document. Returns 0 without a document or its filter manager.
    int saveFilters();

    // Filters by name

    /// The first filter of a name at or below another, parents before children; null for none.
    static VxLyLayerFilter* findFilter(const VxString& name, VxLyLayerFilter* start);
    /// The same in the whole tree.
    VxLyLayerFilter* findFilter(const VxString& name) const;
    /// Has the host make a filter the one in force. Returns 0 for an empty name only; an unknown one
    /// leaves no filter in force here, and sends nothing.
    int setCurrentFilter(const VxString& name);
    /// A name that begins so and is free.
    VxString uniqueFilterName(const VxString& base) const;
    /// Whether a filter may get this name, blanks around it apart; says why not, unless the reason is
    /// none of a user's. 0 if it may.
    Zorq::ErrorStatus validateFilterName(const VxString& name) const;

    // Changes of the tree

    /// Nests a new, empty group. Its name; empty if none was made.
    VxString addGroupFilter(const VxString& parentName);
    /// Gives a filter another name, as the user typed it. Whether the tree has to be shown anew.
    bool renameFilter(const VxString& name, const VxString& newName);
    /// Deletes a filter that may be deleted. Whether the tree has to be shown anew.
    bool deleteFilter(const VxString& name);
    /// Whether a group can take the filter's place.
    static bool canConvertToGroup(VxLyLayerFilter* filter);
    /// Puts a group of the layers that a filter shows now in its place. Returns 0 on failure, with what
    /// was moved to the group lost from this copy.
    int convertToGroup(const VxString& name);
    /// Adds the layers of entities to a group, or puts them in the place of those that it has. Returns 0
    /// on failure, with what was changed left in this copy.
    int addSelectionToGroup(const VxString& name, bool replace, const VxDbObjectIdArray& entities);

    // Changes of the layers that a filter shows. They return 1 when all layers were walked over.

    int setLayersOn(const VxString& name, bool on);
    int setLayersFrozen(const VxString& name, bool freeze);
    int setLayersLocked(const VxString& name, bool lock);
    /// In the current viewport alone; 0 in model space.
    int setLayersFrozenInViewport(const VxString& name, bool freeze);
    /// Freezes all other layers, there or everywhere.
    int isolateGroupActiveViewport(const VxString& name);
    int isolateGroupAllViewports(const VxString& name);

    /// Calls an operation for each layer until it says no. Returns 1 when the whole table was walked.
    static int forEachLayer(VxDbDatabase* database, VxDaFilterPropOp& operation);

private:
    VxDbDatabase* databaseToChange(const VxLyLayerFilter* filter) const;
    bool moveNested(VxLyLayerFilter& from, VxLyLayerGroup& to);
    bool putInPlace(VxLyLayerFilter& old, std::unique_ptr<VxLyLayerGroup> group);
    void forgetLostCurrent();

    std::unique_ptr<VxLyLayerFilter> m_root;
    VxLyLayerFilter* m_current = nullptr;  // in the tree below the root
    FilterImages m_images;
};

/// The manager; null while there is no filter combo.
CVxDaLayerFilterMgr* layerFilterMgr();
