#include "workbench/commands/view_commands.h"

#include "workbench/base/text.h"
#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/core/answers.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/preset_views.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace workbench {

namespace {

using drawing::Database;
using drawing::ObjectId;
using drawing::PresetView;
using drawing::RecordKind;
using drawing::View;
using drawing::Viewport;
using drawing::Writing;

/// The outcome of a change of the active viewport.
CommandState outcomeOf(const CommandScope& scope, bool done) {
    if (done)
        return CommandState::Ended;
    const bool hasPort = !drawing::activeViewport(scope.document.data()).isNull();
    return failBecause(scope, hasPort ? L"The viewport is locked." : L"There is no viewport.");
}

/// The outcome of what was done with the view of a name.
CommandState outcomeOf(const CommandScope& scope, std::wstring_view view, bool done) {
    if (!done && view.empty())
        return failBecause(scope, L"A view has a name.");
    if (!done && scope.document.data().find(RecordKind::View, toUtf8(view)).isNull())
        return failBecause(scope, L"There is no view " + inQuotes(view) + L".");
    return outcomeOf(scope, done);
}

/// Changes the active viewport; false without one and in a locked one.
template <class Change>
bool changeViewport(Database& database, Change change) {
    const ObjectId id = drawing::activeViewport(database);
    const auto* const present = database.look<Viewport>(id);
    if (present == nullptr || present->locked)
        return false;
    Writing<Viewport> viewport(database, id);
    if (!viewport)
        return false;
    change(*viewport);
    return true;
}

bool turn(Database& database, PresetView preset) {
    return changeViewport(database, [preset](Viewport& viewport) {
        turnTo(viewport.view, preset);
        viewport.appliedView = {};
    });
}

bool restoreView(Database& database, std::wstring_view name) {
    const ObjectId id = database.find(RecordKind::View, toUtf8(name));
    const auto* const view = database.look<View>(id);
    if (view == nullptr)
        return false;
    return changeViewport(database, [view, id](Viewport& viewport) {
        viewport.view = view->view;
        viewport.appliedView.id = id;
    });
}

/// Names the present view, also one that had the name before; the viewport shows it then.
bool saveView(Database& database, std::wstring_view name) {
    const auto* const present = database.look<Viewport>(drawing::activeViewport(database));
    if (present == nullptr || name.empty())
        return false;
    View view;
    view.name = toUtf8(name);
    view.view = present->view;
    ObjectId id = database.find(RecordKind::View, view.name);
    if (id.isNull()) {
        id = database.add(view).id;
    } else {
        Writing<View> record(database, id);
        if (record)
            record->view = view.view;
    }
    if (id.isNull())
        return false;
    changeViewport(database, [id](Viewport& viewport) { viewport.appliedView.id = id; });
    return true;
}

bool deleteView(Database& database, std::wstring_view name) {
    const ObjectId id = database.find(RecordKind::View, toUtf8(name));
    if (id.isNull())
        return false;
    Writing<View> view(database, id);
    return view && view.erase() == drawing::Status::Ok;
}

/// Says which views have names.
void listViews(const CommandScope& scope) {
    const Database& database = scope.document.data();
    const std::vector<ObjectId> views = database.ids(RecordKind::View);
    scope.editor.print(scope.document, views.empty() ? L"No view has a name." : L"Named views:");
    for (const ObjectId id : views)
        scope.editor.print(scope.document, toWide(database.look<View>(id)->name));
}

struct PresetOption {
    const wchar_t* name;  // its capitals must be entered
    PresetView preset;
};
constexpr PresetOption kPresets[] = {
    {L"Top", PresetView::Top},         {L"Bottom", PresetView::Bottom},
    {L"Front", PresetView::Front},     {L"BAck", PresetView::Back},
    {L"Left", PresetView::Left},       {L"RIght", PresetView::Right},
    {L"SWiso", PresetView::SouthWest}, {L"SEiso", PresetView::SouthEast},
    {L"NEiso", PresetView::NorthEast}, {L"NWiso", PresetView::NorthWest},
};

/// An option that asks for a view's name.
struct NameOption {
    const wchar_t* name;  // its capitals must be entered
    const wchar_t* prompt;
    bool (*apply)(Database& database, std::wstring_view view);
};
constexpr NameOption kNameOptions[] = {
    {L"Restore", L"Name of the view to restore:", restoreView},
    {L"Save", L"Name for the present view:", saveView},
    {L"Delete", L"Name of the view to delete:", deleteView},
};

class ViewCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        Database& database = scope.document.data();
        if (m_option != nullptr)
            return outcomeOf(scope, answer, m_option->apply(database, answer));
        if (answer == L"?")
            listViews(scope);
        if (answer.empty() || answer == L"?")
            return CommandState::Ended;
        const auto isChosen = [answer](const auto& row) { return choosesOption(answer, row.name); };
        const auto* const named =
            std::find_if(std::begin(kNameOptions), std::end(kNameOptions), isChosen);
        if (named != std::end(kNameOptions)) {
            m_option = named;
            return CommandState::Waiting;
        }
        const auto* const preset = std::find_if(std::begin(kPresets), std::end(kPresets), isChosen);
        if (preset == std::end(kPresets))
            return askAgain(scope, inQuotes(answer) + L" is no option.");
        return outcomeOf(scope, turn(database, preset->preset));
    }

    std::wstring prompt() const override {
        return m_option != nullptr ? m_option->prompt
                                   : L"Enter an option [?/Restore/Save/Delete/Top/Bottom/Front/"
                                     L"BAck/Left/RIght/SWiso/SEiso/NEiso/NWiso]:";
    }

    bool takesBlanks() const override { return m_option != nullptr; }

private:
    const NameOption* m_option = nullptr;  // asks for its name; null: the option is asked for
};

/// A command with a dialog in which a view is named.
class ViewDialogCommand final : public Command {
public:
    ViewDialogCommand(const char* dialog, bool (*apply)(Database&, std::wstring_view))
        : m_dialog(dialog),
          m_apply(apply) {}

    CommandState start(const CommandScope& scope) override {
        scope.editor.journal().add("dialog", {{"name", m_dialog}});
        const std::optional<Value> answer = scope.editor.answers().take("dialog");
        const Value* const name = answer ? answer->member("name") : nullptr;
        if (name == nullptr || !name->isString())
            return CommandState::Cancelled;
        const std::wstring view = toWide(name->asString());
        return outcomeOf(scope, view, m_apply(scope.document.data(), view));
    }

private:
    const char* m_dialog;
    bool (*m_apply)(Database& database, std::wstring_view name);
};

}  // namespace

void addViewCommands(CommandRegistry& registry) {
    addHostCommand<ViewCommand>(registry, L"-VIEW", CommandTraits::Transparent);
    addHostCommand<ViewDialogCommand>(registry, L"NEWVIEW", CommandTraits::Transparent, "New View",
                                      saveView);
    addHostCommand<ViewDialogCommand>(registry, L"VIEW", CommandTraits::Plain, "View Manager",
                                      restoreView);
}

}  // namespace workbench
