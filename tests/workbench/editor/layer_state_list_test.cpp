#include "workbench/editor/layer_state_list.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"

namespace workbench {

class LayerStateListTest : public EditorTest {
protected:
    using Names = std::vector<std::wstring>;
    using Unknown = drawing::UnknownLayers;

    LayerStateListTest() : m_document(newDocument()) {
        set("layers.Walls", Value::Table{{"frozen", true}});
    }

    LayerStateList states(Unknown unknown = Unknown::TurnOff) {
        return {m_document, {.unknown = unknown}};
    }
    void set(const char* path, const Value& value) {
        drawing::setByPath(m_document.data(), path, value);
    }
    Value get(const char* path) { return drawing::getByPath(m_document.data(), path); }

    Document& m_document;
};

TEST_F(LayerStateListTest, AStateIsSavedWithItsDescriptionAndRestored) {
    EXPECT_EQ(states().save(L"Plan", L"walls hidden"), L"");
    EXPECT_EQ(states().names(), Names{L"Plan"});
    EXPECT_EQ(states().descriptionOf(L"plan"), L"walls hidden");
    set("layers.Walls.frozen", false);
    EXPECT_EQ(states().restore(L"Plan"), L"");
    EXPECT_EQ(get("layers.Walls.frozen"), Value(true));
    EXPECT_EQ(get("current.layerState"), Value("Plan"));
}

TEST_F(LayerStateListTest, LayersThatTheStateDoesNotKnowGoOffOnlyIfAskedFor) {
    states().save(L"Plan", L"");
    set("layers.New", Value::Table{});
    EXPECT_EQ(states(Unknown::Keep).restore(L"Plan"), L"");
    EXPECT_EQ(get("layers.New.on"), Value(true));
    EXPECT_EQ(states(Unknown::TurnOff).restore(L"Plan"), L"");
    EXPECT_EQ(get("layers.New.on"), Value(false));
}

TEST_F(LayerStateListTest, AViewportOfALayoutGetsItsOwnLookOnlyIfAskedFor) {
    set("current.tileMode", false);
    set("viewports.3", Value::Table{});
    set("layouts.Layout1.currentViewport", 3);
    set("layers.Walls.colour", "#ff0000");
    states().save(L"Red", L"");
    set("layers.Walls.colour", "#00ff00");
    const auto restore = [this](drawing::RestoredLook look) {
        return LayerStateList(m_document, {.look = look}).restore(L"Red");
    };
    EXPECT_EQ(restore(drawing::RestoredLook::OfViewport), L"");
    EXPECT_EQ(get("layers.Walls.colour"), Value("#00ff00"));
    set("viewports.3", Value());
    set("viewports.3", Value::Table{});
    EXPECT_EQ(restore(drawing::RestoredLook::OfLayers), L"");
    EXPECT_EQ(get("layers.Walls.colour"), Value("#ff0000"));
}

TEST_F(LayerStateListTest, ARenamedStateStaysTheOneRestoredLast) {
    states().save(L"Plan", L"");
    states().restore(L"Plan");
    EXPECT_EQ(states().rename(L"Plan", L"PLAN A"), L"");
    EXPECT_EQ(states().names(), Names{L"PLAN A"});
    EXPECT_EQ(get("current.layerState"), Value("PLAN A"));
}

TEST_F(LayerStateListTest, ANameMayChangeItsCase) {
    states().save(L"Plan", L"");
    EXPECT_EQ(states().rename(L"Plan", L"PLAN"), L"");
    EXPECT_EQ(states().names(), Names{L"PLAN"});
}

TEST_F(LayerStateListTest, AnErasedStateIsGoneAndUndoBringsItBack) {
    states().save(L"Plan", L"");
    EXPECT_EQ(states().erase(L"Plan"), L"");
    EXPECT_EQ(states().names(), Names{});
    editor().undo();
    EXPECT_EQ(states().names(), Names{L"Plan"});
    editor().undo();
    EXPECT_EQ(states().names(), Names{});
}

TEST_F(LayerStateListTest, WhatIsWrongIsSaid) {
    states().save(L"Plan", L"");
    states().save(L"View", L"");
    EXPECT_EQ(states().save(L"plan", L""), L"There is a layer state \"plan\" already.");
    EXPECT_EQ(states().save(L"", L""), L"A layer state has a name.");
    EXPECT_EQ(states().rename(L"Plan", L"View"), L"There is a layer state \"View\" already.");
    EXPECT_EQ(states().rename(L"Plan", L""), L"A layer state has a name.");
    EXPECT_EQ(states().rename(L"None", L"Other"), L"There is no layer state \"None\".");
    EXPECT_EQ(states().erase(L"None"), L"There is no layer state \"None\".");
    EXPECT_EQ(states().restore(L"None"), L"There is no layer state \"None\".");
    EXPECT_EQ(states().descriptionOf(L"None"), L"");
    EXPECT_EQ(states().names(), (Names{L"Plan", L"View"}));
}

TEST_F(LayerStateListTest, AStateThatIsOpenElsewhereStays) {
    states().save(L"Plan", L"");
    drawing::DbObject* open = nullptr;
    ASSERT_EQ(m_document.data().open(m_document.data().first(drawing::RecordKind::LayerState),
                                     drawing::OpenMode::Read, drawing::ErasedObjects::Refuse, open),
              drawing::Status::Ok);
    EXPECT_EQ(states().erase(L"Plan"), L"The layer state \"Plan\" can't be changed now.");
    EXPECT_EQ(states().rename(L"Plan", L"Other"),
              L"The layer state \"Plan\" can't be changed now.");
    open->close();
    EXPECT_EQ(states().names(), Names{L"Plan"});
}

}  // namespace workbench
