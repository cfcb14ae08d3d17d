#pragma once

#include "tests/layer/layer_filter_fixture.h"

#include <string>

/// Test fixture: what entry points do to layers.
class FilterWalkTest : public LayerFilterTest {
protected:
    void setLayer(const std::string& layer, const std::string& property, bool on) {
        setDb("layers." + layer + "." + property, on);
    }
    /// The layers that are frozen in the viewport on show.
    Texts frozenHere() {
        Texts names;
        for (const workbench::Value& layer : db("viewports.current.frozenLayers").asList())
            names.push_back(layer.asString());
        return names;
    }
    /// Goes into a viewport of the first layout.
    void enterViewport() {
        set(L"TILEMODE", 0);
        type(L"MSPACE\n");
        takeJournal();
    }
    /// The group of all layers but the current one, and of it.
    void showAll() {
        addGroup("Everything", {"0", "Walls", "Doors", "Roof"});
        refresh();
    }
    std::size_t openCount() {
        return bench().editor().documents().current()->openObjects().count();
    }
};
