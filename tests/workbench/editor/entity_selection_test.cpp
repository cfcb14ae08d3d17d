#include "workbench/editor/entity_selection.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/records/entity.h"

#include <stdexcept>

namespace workbench {

class EntitySelectionTest : public EditorTest {
protected:
    using Entities = EntitySelection::Entities;

    EntitySelectionTest() : m_document(newDocument()) {
        run(L"_line\n0,0\n1,0\n2,0\n3,0\n\n");
        m_ids = m_document.data().ids(drawing::RecordKind::Entity);
        for (const bool uses : {false, true}) {
            CommandDefinition definition;
            definition.group = L"TEST";
            definition.globalName = definition.localName = uses ? L"USES" : L"DROPS";
            definition.usesPickSet = uses;
            definition.make = [this] { return std::make_unique<Asking>(*this); };
            editor().commands().add(definition);
        }
    }

    EntitySelection& selection() { return editor().selection(); }
    std::optional<Entities> ask() { return selection().ask(m_document); }
    void queue(const Value& answer) { editor().answers().queue("select", answer); }
    static Value number(drawing::ObjectId id) { return static_cast<std::int64_t>(id.handle()); }
    Lines said() { return fields("output", "text"); }

    Document& m_document;
    Entities m_ids;
    std::optional<Entities> m_inCommand;  // what the last command was given

private:
    /// Asks for entities and ends.
    class Asking final : public Command {
    public:
        explicit Asking(EntitySelectionTest& test) : m_test(test) {}
        CommandState start(const CommandScope& /*scope*/) override {
            m_test.m_inCommand = m_test.ask();
            return CommandState::Ended;
        }

    private:
        EntitySelectionTest& m_test;
    };
};

TEST_F(EntitySelectionTest, AQueuedAnswerNamesEntitiesByTheirNumbers) {
    queue(Value::List{number(m_ids[2]), number(m_ids[0]), number(m_ids[2])});
    EXPECT_EQ(ask(), (Entities{m_ids[2], m_ids[0]}));
    EXPECT_EQ(said(), Lines{"Select objects:"});
}

TEST_F(EntitySelectionTest, WithoutAnAnswerOrWithNilItIsCancelled) {
    EXPECT_EQ(ask(), std::nullopt);
    queue(Value());
    EXPECT_EQ(ask(), std::nullopt);
    queue(Value::List{});
    EXPECT_EQ(ask(), Entities{});
    queue(Value::Table{});
    EXPECT_EQ(ask(), Entities{});
}

TEST_F(EntitySelectionTest, AnAnswerThatNamesNoEntityIsAnError) {
    for (const Value& wrong : {Value(0), Value(-1), Value(999),
                               number(m_document.data().first(drawing::RecordKind::Layer))}) {
        queue(Value::List{wrong});
        EXPECT_THROW(ask(), std::invalid_argument) << wrong.describe();
    }
}

TEST_F(EntitySelectionTest, WhoShowsTheDrawingIsAskedWhereNothingIsQueued) {
    selection().setPresenter([this](Document& document) {
        EXPECT_EQ(&document, &m_document);
        return Entities{m_ids[1]};
    });
    queue(Value::List{number(m_ids[0])});
    EXPECT_EQ(ask(), Entities{m_ids[0]});
    EXPECT_EQ(ask(), Entities{m_ids[1]});
    selection().setPresenter(nullptr);
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(EntitySelectionTest, ASelectionMadeBeforeIsTakenOnceWithoutAQuestion) {
    EXPECT_TRUE(selection().selectBefore(m_document, {m_ids[0], m_ids[0], m_ids[1]}));
    EXPECT_EQ(ask(), (Entities{m_ids[0], m_ids[1]}));
    EXPECT_EQ(said(), Lines{});
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(EntitySelectionTest, ACommandThatMayUseItIsGivenIt) {
    selection().selectBefore(m_document, {m_ids[0]});
    run(L"uses\n");
    EXPECT_EQ(m_inCommand, Entities{m_ids[0]});
    run(L"uses\n");
    EXPECT_EQ(m_inCommand, std::nullopt);
}

TEST_F(EntitySelectionTest, ACommandThatMayNotDropsIt) {
    selection().selectBefore(m_document, {m_ids[0]});
    run(L"drops\n");
    EXPECT_EQ(m_inCommand, std::nullopt);
    run(L"uses\n");
    EXPECT_EQ(m_inCommand, std::nullopt);
}

TEST_F(EntitySelectionTest, ATransparentCommandLeavesIt) {
    selection().selectBefore(m_document, {m_ids[0]});
    run(L"-view\ntop\n");
    run(L"uses\n");
    EXPECT_EQ(m_inCommand, Entities{m_ids[0]});
}

TEST_F(EntitySelectionTest, NothingIsSelectedBeforeWhileACommandRuns) {
    editor().beginCommand(L"WAITS");
    EXPECT_FALSE(selection().selectBefore(m_document, {m_ids[0]}));
    editor().finishCommand(CommandState::Ended);
    EXPECT_EQ(ask(), std::nullopt);
}

TEST_F(EntitySelectionTest, WhatWasErasedMeanwhileIsNoPartOfIt) {
    selection().selectBefore(m_document, {m_ids[0], m_ids[1]});
    drawing::Writing<drawing::Entity>(m_document.data(), m_ids[0]).erase();
    EXPECT_EQ(ask(), Entities{m_ids[1]});
}

TEST_F(EntitySelectionTest, EachDocumentHasItsOwn) {
    selection().selectBefore(m_document, {m_ids[0]});
    Document& other = newDocument(L"B");
    EXPECT_EQ(selection().ask(other), std::nullopt);
    EXPECT_EQ(ask(), Entities{m_ids[0]});
}

}  // namespace workbench
