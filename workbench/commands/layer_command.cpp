#include "workbench/commands/layer_command.h"

#include "workbench/base/text.h"
#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {

namespace {

using drawing::Database;
using drawing::Layer;
using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Writing;

/// Adds the layers of a list of names that are not there yet.
void addLayers(Database& database, std::wstring_view names) {
    for (const std::wstring& name : splitList(names)) {
        Layer layer;
        layer.name = toUtf8(name);
        database.add(layer);
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

/// An option of -LAYER that changes the layers named in the answer.
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
         addLayers(scope.document.data(), name);
         setCurrent(scope, name);
     }},
    {L"Set", L"Layer name to make current:", setCurrent},
    {L"New", L"Name list for new layer(s):",
     [](const CommandScope& scope, std::wstring_view names) {
         addLayers(scope.document.data(), names);
     }},
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
};

/// Asks for options until Enter, and after each for the layers.
class LayerCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        if (m_option != nullptr) {
            std::exchange(m_option, nullptr)->apply(scope, answer);
            return CommandState::Waiting;
        }
        if (answer.empty())
            return CommandState::Ended;
        const auto* option = std::find_if(
            std::begin(kOptions), std::end(kOptions),
            [answer](const LayerOption& known) { return choosesOption(answer, known.name); });
        if (option == std::end(kOptions))
            return askAgain(scope, inQuotes(answer) + L" is no option.");
        m_option = option;
        return CommandState::Waiting;
    }

    std::wstring prompt() const override {
        return m_option != nullptr
                   ? m_option->prompt
                   : L"Enter an option [?/Make/Set/New/ON/OFF/Freeze/Thaw/LOck/Unlock]:";
    }

    bool takesBlanks() const override { return m_option != nullptr; }

private:
    const LayerOption* m_option = nullptr;  // asks for its layers; null: the next one is asked for
};

}  // namespace

void addLayerCommands(CommandRegistry& registry) {
    addHostCommand<LayerCommand>(registry, L"-LAYER", CommandTraits::Plain);
}

}  // namespace workbench
