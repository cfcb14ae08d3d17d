#include "workbench/drawing/filter_paths.h"

#include "workbench/base/text.h"
#include "workbench/drawing/path_target.h"
#include "workbench/drawing/path_text.h"
#include "workbench/drawing/records/layer_filter_expression.h"
#include "workbench/drawing/records/layer_filters.h"
#include "workbench/drawing/shown_layers.h"

#include <algorithm>
#include <cstddef>

namespace workbench::drawing {

namespace {

void collectNames(const LayerFilter& filter, Value::List& names) {
    names.push_back(filter.name);
    for (const LayerFilter& child : filter.children) {
        collectNames(child, names);
    }
}

Value::List allNames(const LayerFilters& filters) {
    Value::List names;
    collectNames(filters.root, names);
    return names;
}

Value shownLayers(const LayerFilter& filter, const Database& database) {
    Value::List names;
    for (const ObjectId id : database.ids(RecordKind::Layer)) {
        if (filterShows(filter, id, database)) {
            names.push_back(database.peek(id)->name());
        }
    }
    return names;
}

Value childNames(const LayerFilter& filter) {
    Value::List names;
    for (const LayerFilter& child : filter.children) {
        names.push_back(child.name);
    }
    return names;
}

Value filterTable(const LayerFilters& filters, const LayerFilter& filter,
                  const Database& database) {
    const LayerFilter* parent = findFilterParent(filters.root, filter.name);
    return Value::Table{
        {"name", filter.name},
        {"kind", toValue(filter.kind, database)},
        {"expression", filter.expression},
        {"layers", toValue(filter.layers, database)},
        {"shows", shownLayers(filter, database)},
        {"parent", parent == nullptr ? Value() : Value(parent->name)},
        {"children", childNames(filter)},
    };
}

/// Throws `ValueError` if another filter than `own` bears the name.
void checkFreeName(LayerFilters& filters, const std::string& name, const LayerFilter* own) {
    const LayerFilter* found = findFilter(filters.root, name);
    if (name.empty() || (found != nullptr && found != own)) {
        throw ValueError("the name \"" + name + "\" is empty or taken");
    }
}

void setMember(LayerFilters& filters, LayerFilter& filter, const std::string& member,
               const Value& value, const Database& database) {
    if (equalNoCase(member, "name")) {
        checkFreeName(filters, value.asString(), &filter);
        const bool isCurrent = equalNoCase(filters.current, filter.name);
        filter.name = value.asString();
        if (isCurrent) {
            filters.current = filter.name;
        }
    } else if (equalNoCase(member, "kind")) {
        fromValue(value, filter.kind, database);
    } else if (equalNoCase(member, "expression")) {
        const LayerFilterExpression check(value.asString());
        filter.expression = value.asString();
    } else if (equalNoCase(member, "layers")) {
        fromValue(value, filter.layers, database);
    } else {
        throw ValueError("a layer filter has no \"" + member + "\" to be set");
    }
}

LayerFilter& addFilter(LayerFilters& filters, const std::string& name, const Value& value) {
    checkFreeName(filters, name, nullptr);
    const Value* parentName = value.member("parent");
    LayerFilter* parent = &filters.root;
    if (parentName != nullptr) {
        parent = findFilter(filters.root, parentName->asString());
        if (parent == nullptr) {
            throw ValueError("there is no layer filter named " + parentName->describe());
        }
    }
    LayerFilter added;
    added.name = name;
    parent->children.push_back(added);
    return parent->children.back();
}

void setWhole(LayerFilters& filters, const std::string& name, const Value& value,
              const Database& database) {
    LayerFilter* filter = findFilter(filters.root, name);
    const bool isNew = filter == nullptr;
    if (isNew) {
        filter = &addFilter(filters, name, value);
    }
    for (const Value::Member& member : value.asTable()) {
        if (!isNew || !equalNoCase(member.name, "parent")) {
            setMember(filters, *filter, member.name, member.value, database);
        }
    }
}

void deleteFilter(LayerFilters& filters, const std::string& name) {
    LayerFilter* parent = findFilterParent(filters.root, name);
    if (parent == nullptr) {
        throw ValueError("there is no layer filter named \"" + name + "\" that could be deleted");
    }
    std::erase_if(parent->children,
                  [&name](const LayerFilter& child) { return equalNoCase(child.name, name); });
    if (findFilter(filters.root, filters.current) == nullptr) {
        filters.current = filters.root.name;
    }
}

void change(LayerFilters& filters, const std::vector<std::string>& steps, const Value& value,
            const Database& database) {
    const std::string& step = steps[1];
    if (steps.size() == 2 && equalNoCase(step, "current")) {
        if (findFilter(filters.root, value.asString()) == nullptr) {
            throw ValueError("there is no layer filter named " + value.describe());
        }
        filters.current = value.asString();
    } else if (steps.size() == 2 && equalNoCase(step, "root")) {
        fromValue(value, filters.root, database);
    } else if (steps.size() == 2 && value.isNil()) {
        deleteFilter(filters, step);
    } else if (steps.size() == 2) {
        setWhole(filters, step, value, database);
    } else {
        LayerFilter* filter = findFilter(filters.root, step);
        if (filter == nullptr) {
            throw ValueError("there is no layer filter named \"" + step + "\"");
        }
        setMember(filters, *filter, steps[2], value, database);
    }
}

}  // namespace

Value getFilterPath(const Database& database, const std::vector<std::string>& steps) {
    const auto* filters = database.look<LayerFilters>(database.first(RecordKind::LayerFilters));
    if (filters == nullptr) {
        failPath(steps, 1, "the drawing has no layer filters");
    }
    if (steps.size() == 1) {
        return allNames(*filters);
    }
    const LayerFilter* filter = findFilter(filters->root, steps[1]);
    if (filter == nullptr && steps.size() == 2) {
        return equalNoCase(steps[1], "current") ? Value(filters->current)
               : equalNoCase(steps[1], "root")  ? toValue(filters->root, database)
               : equalNoCase(steps[1], "count")
                   ? Value(static_cast<std::int64_t>(allNames(*filters).size()))
                   : Value();
    }
    if (filter == nullptr) {
        failPath(steps, 1, "there is no layer filter named \"" + steps[1] + "\"");
    }
    Value table = filterTable(*filters, *filter, database);
    if (steps.size() == 2) {
        return table;
    }
    const Value* member = table.member(steps[2]);
    if (member == nullptr || steps.size() > 3) {
        failPath(steps, 2, "a layer filter has no \"" + steps.back() + "\"");
    }
    return *member;
}

void setFilterPath(Database& database, const std::vector<std::string>& steps, const Value& value) {
    if (steps.size() < 2 || steps.size() > 3) {
        failPath(steps, 1, "expected the name of a filter and at most one member of it");
    }
    const ObjectId id = database.first(RecordKind::LayerFilters);
    const auto* present = database.look<LayerFilters>(id);
    if (present == nullptr) {
        failPath(steps, 1, "the drawing has no layer filters");
    }
    LayerFilters changed = *present;
    try {
        change(changed, steps, value, database);
    } catch (const ValueError& error) {
        failPath(steps, 1, error.what());
    }
    Writing<LayerFilters> filters(database, id);
    if (!filters) {
        failPath(steps, 1, std::string("it can't be changed now: ") + statusName(filters.status()));
    }
    *filters = std::move(changed);
}

}  // namespace workbench::drawing
