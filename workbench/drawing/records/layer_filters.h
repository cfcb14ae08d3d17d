#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <string_view>
#include <vector>

namespace workbench::drawing {

class Database;

/// What a layer filter goes by.
enum class FilterKind {
    All,           ///< every layer; the root of the tree, kept by the drawing itself
    Used,          ///< the layers that have something on them; kept by the drawing itself
    Unreconciled,  ///< the layers that were not accepted yet; kept by the drawing itself
    Overrides,     ///< those that look other in the active viewport; kept by the drawing itself
    Property,      ///< the layers that an expression describes
    Group,         ///< a list of layers
};

/// A layer filter with the filters nested in it.
struct LayerFilter {
    std::string name;
    FilterKind kind = FilterKind::Property;
    std::string expression;                      // of a property filter
    std::vector<Ref<RecordKind::Layer>> layers;  // of a group
    std::vector<LayerFilter> children;

    /// Kept up to date by the drawing: it can be neither renamed nor deleted.
    bool isGenerated() const { return kind != FilterKind::Property && kind != FilterKind::Group; }

    friend bool operator==(const LayerFilter&, const LayerFilter&) = default;
};

/// The layer filters of a drawing, one tree.
struct LayerFilters {
    static constexpr RecordKind kKind = RecordKind::LayerFilters;
    static const std::vector<Property<LayerFilters>>& properties();

    /// The tree of a new drawing: all layers, and below it the others that a drawing keeps itself.
    LayerFilters();
    /// Adds those filters that a drawing keeps itself and the tree lacks, unless their names are taken.
    void addGenerated();

    LayerFilter root;
    std::string current;  // name of the filter in force

    friend bool operator==(const LayerFilters&, const LayerFilters&) = default;
};

/// The first filter of the name, without regard to case, a parent before its children; null when
/// there is none.
const LayerFilter* findFilter(const LayerFilter& start, std::string_view name);
LayerFilter* findFilter(LayerFilter& start, std::string_view name);

/// The filter in whose children the filter of the name stands; null for the root and an unknown
/// name.
const LayerFilter* findFilterParent(const LayerFilter& start, std::string_view name);
LayerFilter* findFilterParent(LayerFilter& start, std::string_view name);

/// What is to be said of the names in a tree: each is needed, and unique without regard to case.
enum class FilterNames { Good, Empty, Twice };
FilterNames nameProblemOf(const LayerFilter& root);

/// True if the filter shows the layer: where it is nested makes no difference. A property filter whose expression can't be read shows
/// none.
bool filterShows(const LayerFilter& filter, ObjectId layer, const Database& database);

/// "all", "used", "unreconciled", "overrides", "property", "group".
Value toValue(FilterKind member, const Database& database);
void fromValue(const Value& value, FilterKind& member, const Database& database);

Value toValue(const LayerFilter& member, const Database& database);
/// Throws `ValueError` also for a name that stands twice in the tree and an expression that
/// can't be read.
void fromValue(const Value& value, LayerFilter& member, const Database& database);

}  // namespace workbench::drawing
