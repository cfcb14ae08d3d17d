#pragma once

#include "layer/layer_filter_mgr.h"
#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/editor/editor.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

/// Test fixture: a drawing with the layers 0 (current), Walls, Doors and Roof, the property filter
/// "House" that shows Walls and Doors, the group "Top" with Roof, and a filter manager of its own.
class LayerFilterTest : public support::ControlBench {
protected:
    using Calls = std::vector<std::string>;
    using Texts = std::vector<std::string>;

    void SetUp() override {
        useNoMenu();
        newDocument(L"A");
        for (const char* layer : {"Walls", "Doors", "Roof"})
            setDb(std::string("layers.") + layer, workbench::Value::Table{});
        addProperty("House", R"(NAME=="Walls,Doors")");
        addGroup("Top", {"Roof"});
        m_manager = std::make_unique<CVxDaLayerFilterMgr>();
        refresh();
    }
    void TearDown() override {
        m_manager = nullptr;
        ControlBench::TearDown();
    }

    void addProperty(const std::string& name, const std::string& expression,
                     const std::string& parent = {}) {
        addFilter(name, {{"kind", "property"}, {"expression", expression}}, parent);
    }
    void addGroup(const std::string& name, const Texts& layers, const std::string& parent = {}) {
        workbench::Value::List list;
        for (const std::string& layer : layers)
            list.emplace_back(layer);
        addFilter(name, {{"kind", "group"}, {"layers", list}}, parent);
    }
    /// Reads the drawing's filters anew and forgets what happened so far.
    void refresh() {
        m_manager->refreshFilters();
        takeJournal();
    }
    CVxDaLayerFilterMgr& manager() { return *m_manager; }
    VxLyLayerFilter* filter(const std::wstring& name) { return m_manager->findFilter(name); }
    /// The drawing's own filter of a name, as a path of the drawing.
    workbench::Value stored(const std::string& name, const std::string& member) {
        return db("filters[\"" + name + "\"]." + member);
    }
    bool isStored(const std::string& name) {
        const workbench::Value names = db("filters");
        return std::any_of(
            names.asList().begin(), names.asList().end(),
            [&name](const workbench::Value& known) { return known.asString() == name; });
    }
    Texts layersOf(const std::string& group) {
        Texts names;
        for (const workbench::Value& layer : stored(group, "layers").asList())
            names.push_back(layer.asString());
        return names;
    }
    /// The names of the layers of which a property is true.
    Texts layersThatAre(const std::string& property) {
        Texts names;
        for (const char* layer : {"0", "Walls", "Doors", "Roof"}) {
            if (db(std::string("layers.") + layer + "." + property).asBool())
                names.emplace_back(layer);
        }
        return names;
    }
    void answer(const std::string& kind, const workbench::Value& value) {
        bench().answers().queue(kind, value);
    }
    /// The k-th call fails, from 1 on.
    void failAt(const std::string& call, int place, std::optional<int> status = {}) {
        bench().faults().fail(call, status, 1, place - 1);
    }

private:
    void addFilter(const std::string& name, workbench::Value::Table members,
                   const std::string& parent) {
        if (!parent.empty())
            members.push_back({"parent", parent});
        setDb("filters[\"" + name + "\"]", members);
    }

    std::unique_ptr<CVxDaLayerFilterMgr> m_manager;
};
