#include "workbench/editor/layer_state_dialogs.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"
#include "workbench/profiles/profile_store.h"

namespace workbench {

namespace {

/// Notes which dialogs it shows, and does what a user would.
class TestPresenter final : public LayerStatePresenter {
public:
    bool manage(LayerStateList& states) override {
        shown.emplace_back("manage");
        return onManage && onManage(states);
    }
    bool save(LayerStateList& /*states*/) override {
        shown.emplace_back("save");
        return false;
    }

    Lines shown;
    std::function<bool(LayerStateList&)> onManage;
};

}  // namespace

class LayerStateDialogsTest : public EditorTest {
protected:
    LayerStateDialogsTest() : m_document(newDocument()) {
        set("layers.Walls", Value::Table{{"frozen", true}});
        answer({{"name", "Plan"}, {"description", "walls hidden"}});
        EXPECT_TRUE(dialogs().save());
        m_bench.journal().take();
    }

    LayerStateDialogs& dialogs() { return editor().layerStateDialogs(); }
    void answer(const Value::Table& table) { editor().answers().queue("dialog", table); }
    void set(const char* path, const Value& value) {
        drawing::setByPath(m_document.data(), path, value);
    }
    Value get(const char* path) { return drawing::getByPath(m_document.data(), path); }

    Document& m_document;
};

TEST_F(LayerStateDialogsTest, TheManagerRestoresTheStateThatItIsLeftWith) {
    set("layers.Walls.frozen", false);
    answer({{"name", "Plan"}});
    EXPECT_TRUE(dialogs().manage("LayerStateComboControl"));
    EXPECT_EQ(get("layers.Walls.frozen"), Value(true));
    const auto records = m_bench.journal().take("dialog");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].field("name"), Value("Layer States Manager"));
    EXPECT_EQ(records[0].field("owner"), Value("LayerStateComboControl"));
}

TEST_F(LayerStateDialogsTest, AnEmptyTableClosesAndNoAnswerCancels) {
    set("layers.Walls.frozen", false);
    answer({});
    EXPECT_FALSE(dialogs().manage());
    EXPECT_FALSE(dialogs().manage());
    answer({});
    EXPECT_FALSE(dialogs().save());
    EXPECT_FALSE(dialogs().save());
    EXPECT_EQ(get("layers.Walls.frozen"), Value(false));
    EXPECT_EQ(get("states.count"), Value(1));
    EXPECT_EQ(fields("dialog", "name"), (Lines{"Layer States Manager", "Layer States Manager",
                                               "New Layer State", "New Layer State"}));
}

TEST_F(LayerStateDialogsTest, AStateIsSavedUnderItsNameAndDescription) {
    EXPECT_EQ(get("states.Plan.description"), Value("walls hidden"));
    answer({{"name", "Bare"}});
    EXPECT_TRUE(dialogs().save());
    EXPECT_EQ(get("states.Bare.description"), Value(""));
}

TEST_F(LayerStateDialogsTest, WhatCannotBeDoneIsSaidAndIsNoChoice) {
    answer({{"name", "None"}});
    EXPECT_FALSE(dialogs().manage());
    answer({{"name", "plan"}});
    EXPECT_FALSE(dialogs().save());
    EXPECT_EQ(fields("output", "text"), (Lines{R"(There is no layer state "None".)",
                                               R"(There is a layer state "plan" already.)"}));
}

TEST_F(LayerStateDialogsTest, TheProfileSaysWhatBecomesOfNewLayers) {
    const RegistryPath setting{"Dialogs", "VxLayerApps:LayerStatesManager", "LayerNotFound"};
    set("layers.New", Value::Table{});
    for (const auto& [kept, isOn] : {std::pair{0, true}, std::pair{1, false}}) {
        set("layers.New.on", true);
        m_bench.profiles().current().setRegistryValue(setting, kept);
        answer({{"name", "Plan"}});
        EXPECT_TRUE(dialogs().manage());
        EXPECT_EQ(get("layers.New.on"), Value(isOn)) << kept;
    }
    set("layers.New.on", true);
    m_bench.profiles().current().setRegistryValue(setting, Value());
    answer({{"name", "Plan"}});
    EXPECT_TRUE(dialogs().manage());
    EXPECT_EQ(get("layers.New.on"), Value(false));
}

TEST_F(LayerStateDialogsTest, AUserIsShownThemWhereNothingIsQueued) {
    TestPresenter presenter;
    dialogs().setPresenter(&presenter);
    presenter.onManage = [](LayerStateList& states) {
        return states.rename(L"Plan", L"Other").empty();
    };
    answer({});
    EXPECT_FALSE(dialogs().manage());
    EXPECT_EQ(presenter.shown, Lines{});
    EXPECT_TRUE(dialogs().manage());
    EXPECT_FALSE(dialogs().save());
    EXPECT_EQ(presenter.shown, (Lines{"manage", "save"}));
    EXPECT_EQ(get("states.Other.description"), Value("walls hidden"));
    dialogs().setPresenter(nullptr);
    EXPECT_FALSE(dialogs().manage());
}

TEST_F(LayerStateDialogsTest, ADocumentMayBeClosedBehindADialog) {
    TestPresenter presenter;
    dialogs().setPresenter(&presenter);
    presenter.onManage = [this](LayerStateList& states) {
        editor().documents().close(m_document);
        return states.restore(L"Plan").empty();
    };
    EXPECT_TRUE(dialogs().manage());
    EXPECT_FALSE(dialogs().manage());
    EXPECT_FALSE(dialogs().save());
    EXPECT_EQ(presenter.shown, Lines{"manage"});
    dialogs().setPresenter(nullptr);
}

}  // namespace workbench
