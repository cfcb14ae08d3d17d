#include "workbench/commands/layer_command.h"

#include "workbench/base/text.h"
#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/drawing/dependent_name.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layer_filters.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/layer_state_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {

namespace {

using drawing::Database;
using drawing::Layer;
using drawing::LayerFilters;
using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Writing;

constexpr int kLooksOverAllLayers = 2;  // of LAYEREVAL

/// Adds the layers of a list of names that are not there yet.
void addLayers(const CommandScope& scope, std::wstring_view names) {
    for (const std::wstring& name : splitList(names)) {
        Layer layer;
        layer.name = toUtf8(name);
        if (drawing::isDependentName(layer.name)) {
            askAgain(scope, inQuotes(name) + L" can only come with a referenced drawing.");
            continue;
        }
        layer.reconciled = scope.editor.read(L"LAYEREVAL") != Value(kLooksOverAllLayers);
        scope.document.data().add(layer);
    }
}

/// Changes the layers that fit one of the patterns of a list.
template <class Change>
void changeLayers(const CommandScope& scope, std::wstring_view patterns, Change change) {
    Database& database = scope.document.data();
    for (const std::wstring& pattern : splitList(patterns)) {
        bool fitsOne = false;
        for (const ObjectId id : database.ids(RecordKind::Layer)) {
            if (!fitsPattern(toWide(database.look<Layer>(id)->name), pattern))
                continue;
            fitsOne = true;
            Writing<Layer> layer(database, id);
            if (layer)
                change(*layer, id == drawing::currentLayer(database));
        }
        if (!fitsOne)
            askAgain(scope, L"There is no layer " + inQuotes(pattern) + L".");
    }
}

/// An option that goes by the names in the answer.
struct LayerOption {
    const wchar_t* name;    // its capitals must be entered
    const wchar_t* prompt;  // for the names
    void (*apply)(const CommandScope& scope, std::wstring_view answer);
};

void setCurrent(const CommandScope& scope, std::wstring_view name) {
    if (!scope.editor.variables().write(L"CLAYER", toUtf8(name), VariableWriter::Program))
        askAgain(scope, L"The layer " + inQuotes(name) + L" can't be made current.");
}

constexpr LayerOption kOptions[] = {
    {L"?", L"Layer name(s) to list <*>:", [](const CommandScope&, std::wstring_view) {}},
    {L"Make", L"Name for new layer:",
     [](const CommandScope& scope, std::wstring_view name) {
         addLayers(scope, name);
         setCurrent(scope, name);
     }},
    {L"Set", L"Layer name to make current:", setCurrent},
    {L"New", L"Name list for new layer(s):",
     [](const CommandScope& scope, std::wstring_view names) { addLayers(scope, names); }},
    {L"ON", L"Name list of layer(s) to turn on:",
     [](const CommandScope& scope, std::wstring_view names) {
         changeLayers(scope, names, [](Layer& layer, bool) { layer.on = true; });
     }},
    {L"OFF", L"Name list of layer(s) to turn off:",
     [](const CommandScope& scope, std::wstring_view names) {
         changeLayers(scope, names, [](Layer& layer, bool) { layer.on = false; });
     }},
    {L"Freeze", L"Name list of layer(s) to freeze:",
     [](const CommandScope& scope, std::wstring_view names) {
         // The layer that the user works on can't be frozen.
         changeLayers(scope, names,
                      [](Layer& layer, bool isCurrent) { layer.frozen |= !isCurrent; });
     }},
    {L"Thaw", L"Name list of layer(s) to thaw:",
     [](const CommandScope& scope, std::wstring_view names) {
         changeLayers(scope, names, [](Layer& layer, bool) { layer.frozen = false; });
     }},
    {L"LOck", L"Name list of layer(s) to lock:",
     [](const CommandScope& scope, std::wstring_view names) {
         changeLayers(scope, names, [](Layer& layer, bool) { layer.locked = true; });
     }},
    {L"Unlock", L"Name list of layer(s) to unlock:",
     [](const CommandScope& scope, std::wstring_view names) {
         changeLayers(scope, names, [](Layer& layer, bool) { layer.locked = false; });
     }},
    {L"REconcile", L"Name list of layer(s) to accept:",
     [](const CommandScope& scope, std::wstring_view names) {
         changeLayers(scope, names, [](Layer& layer, bool) { layer.reconciled = true; });
     }},
};

void setCurrentFilter(const CommandScope& scope, std::wstring_view name) {
    Database& database = scope.document.data();
    const ObjectId id = database.first(RecordKind::LayerFilters);
    const auto* filters = database.look<LayerFilters>(id);
    const auto* filter =
        filters == nullptr ? nullptr : drawing::findFilter(filters->root, toUtf8(name));
    if (filter == nullptr) {
        askAgain(scope, L"There is no layer filter " + inQuotes(name) + L".");
        return;
    }
    const std::string current = filter->name;
    if (current == filters->current)
        return;
    Writing<LayerFilters> writing(database, id);
    if (writing)
        writing->current = current;
}

constexpr LayerOption kFilterOptions[] = {
    {L"Set", L"Name of the filter to make current:", setCurrentFilter},
};

LayerStateList statesOf(const CommandScope& scope) {
    return {scope.document, {drawing::UnknownLayers::Keep, drawing::RestoredLook::OfLayers}};
}

void complain(const CommandScope& scope, const std::wstring& problem) {
    if (!problem.empty())
        askAgain(scope, problem);
}

std::vector<std::string> layerNames(const Database& database) {
    std::vector<std::string> names;
    for (const ObjectId id : database.ids(RecordKind::Layer))
        names.push_back(database.peek(id)->name());
    return names;
}

void restoreState(const CommandScope& scope, std::wstring_view name) {
    const std::wstring problem = statesOf(scope).restore(std::wstring(name));
    complain(scope, problem);
    if (problem.empty())
        scope.document.regeneration().afterLayers(scope.editor, scope.document,
                                                  layerNames(scope.document.data()));
}

void listStates(const CommandScope& scope, std::wstring_view patterns) {
    for (const std::wstring& name : statesOf(scope).names()) {
        if (patterns.empty() || fitsPattern(name, patterns))
            scope.editor.print(scope.document, name);
    }
}

constexpr LayerOption kStateOptions[] = {
    {L"?", L"Name(s) of the layer states to list <*>:", listStates},
    {L"Save", L"Name of the new layer state:",
     [](const CommandScope& scope, std::wstring_view name) {
         complain(scope, statesOf(scope).save(std::wstring(name), {}));
     }},
    {L"Restore", L"Name of the layer state to restore:", restoreState},
    {L"Delete", L"Name of the layer state to delete:",
     [](const CommandScope& scope, std::wstring_view name) {
         complain(scope, statesOf(scope).erase(std::wstring(name)));
     }},
};

/// A list of options, one of which is asked for.
struct OptionList {
    const wchar_t* name;  // by which an outer list is left for it; its capitals must be entered
    const wchar_t* prompt;
    const LayerOption* options;
    std::size_t count;
    bool asksUntilEnter;  // also after an option was carried out

    const LayerOption* find(std::wstring_view answer) const {
        const LayerOption* end = options + count;
        const LayerOption* option = std::find_if(options, end, [answer](const LayerOption& known) {
            return choosesOption(answer, known.name);
        });
        return option == end ? nullptr : option;
    }
};

constexpr OptionList kOuterList = {
    L"", L"Enter an option [?/Make/Set/New/ON/OFF/Freeze/Thaw/LOck/Unlock/STate/FIlter/REconcile]:",
    kOptions, std::size(kOptions), true};

constexpr OptionList kInnerLists[] = {
    {L"STate", L"Enter an option [?/Save/Restore/Delete]:", kStateOptions, std::size(kStateOptions),
     true},
    {L"FIlter", L"Enter an option [Set]:", kFilterOptions, std::size(kFilterOptions), false},
};

const OptionList* findInnerList(std::wstring_view answer) {
    const auto* list = std::find_if(
        std::begin(kInnerLists), std::end(kInnerLists),
        [answer](const OptionList& known) { return choosesOption(answer, known.name); });
    return list == std::end(kInnerLists) ? nullptr : list;
}

/// Asks for options until Enter, and after each for the layers. Two options have lists of their own.
class LayerCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        if (m_option != nullptr) {
            std::exchange(m_option, nullptr)->apply(scope, answer);
            if (!m_list->asksUntilEnter)
                m_list = &kOuterList;
            return CommandState::Waiting;
        }
        if (answer.empty())
            return leaveList();
        return choose(scope, answer);
    }

    std::wstring prompt() const override {
        return m_option != nullptr ? m_option->prompt : m_list->prompt;
    }

    bool takesBlanks() const override { return m_option != nullptr; }

private:
    CommandState leaveList() {
        return std::exchange(m_list, &kOuterList) == &kOuterList ? CommandState::Ended
                                                                 : CommandState::Waiting;
    }

    CommandState choose(const CommandScope& scope, std::wstring_view answer) {
        const OptionList* inner = m_list == &kOuterList ? findInnerList(answer) : nullptr;
        if (inner != nullptr) {
            m_list = inner;
            return CommandState::Waiting;
        }
        m_option = m_list->find(answer);
        return m_option != nullptr ? CommandState::Waiting
                                   : askAgain(scope, inQuotes(answer) + L" is no option.");
    }

    const OptionList* m_list = &kOuterList;
    const LayerOption* m_option = nullptr;  // asks for its layers; null: the next one is asked for
};

}  // namespace

void addLayerCommands(CommandRegistry& registry) {
    addHostCommand<LayerCommand>(registry, L"-LAYER", CommandTraits::Transparent);
}

}  // namespace workbench
