#pragma once

#include "core/family_events.h"

/// A layer filter list on a panel.
class LayerFilterView {
public:
    virtual ~LayerFilterView() = default;
    /// Reads the filters again and shows them.
    virtual void refreshFilters() = 0;
};

/// Adds a live list to those that are refreshed. Not owned.
void addLayerFilterView(LayerFilterView* view);
/// Takes a list off.
void removeLayerFilterView(LayerFilterView* view);

/// Brings all layer filter lists in line with the drawing; nothing without one.
void refreshFilterCombos();

/// What changes layers, and so the lists of their filters.
extern const FamilyEvents kLayerFilterEvents;
