#include "workbench/toolbar/view_lists.h"

#include "workbench/base/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/preset_views.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace workbench {

namespace {

using drawing::Database;
using drawing::PresetView;
using drawing::ViewParameters;
using drawing::Viewport;

constexpr std::array<const wchar_t*, drawing::kPresetViewCount> kPresets = {
    L"Top",   L"Bottom",       L"Front",        L"Back",         L"Left",
    L"Right", L"SW Isometric", L"SE Isometric", L"NE Isometric", L"NW Isometric"};

/// A scale by its two numbers: so many units of paper for so many of the model.
struct Scale {
    int paper;
    int model;
};
constexpr Scale kScales[] = {{1, 1},  {1, 2},   {1, 5}, {1, 10}, {1, 20},
                             {1, 50}, {1, 100}, {2, 1}, {10, 1}};
constexpr double kSameScale = 1.0e-6;  // of each other

Database* databaseOf(const ToolbarScope& scope) {
    Document* const document = scope.editor.documents().current();
    return document == nullptr ? nullptr : &document->data();
}

const Viewport* activeViewport(const ToolbarScope& scope) {
    const Database* const database = databaseOf(scope);
    return database == nullptr ? nullptr
                               : database->look<Viewport>(drawing::activeViewport(*database));
}

/// Changes the active viewport; nothing without one and in a locked one.
template <class Change>
void changeViewport(const ToolbarScope& scope, Change change) {
    const Viewport* const present = activeViewport(scope);
    if (present == nullptr || present->locked)
        return;
    Database& database = *databaseOf(scope);
    drawing::Writing<Viewport> viewport(database, drawing::activeViewport(database));
    if (viewport)
        change(*viewport);
}

bool isNear(const drawing::Vec3& one, const drawing::Vec3& other, double within) {
    return drawing::distance(one, other) <= within;
}

bool looksFrom(const ViewParameters& view, PresetView preset) {
    ViewParameters turned = view;
    turnTo(turned, preset);
    const double within = kSameScale * drawing::distance(view.eye, view.target);
    return !view.perspective && isNear(view.eye, turned.eye, within) &&
           isNear(view.up, turned.up, kSameScale);
}

std::wstring nameOf(const Scale& scale) {
    return std::to_wstring(scale.paper) + L":" + std::to_wstring(scale.model);
}

/// Paper units for one of the model in a viewport on a sheet; nothing elsewhere.
std::optional<double> scaleOf(const Viewport* viewport) {
    if (viewport == nullptr || viewport->isTile() || viewport->isPaper())
        return {};
    const double height = viewport->upperRight.y - viewport->lowerLeft.y;
    if (!(height > 0.0) || !(viewport->view.height > 0.0))
        return {};
    return height / viewport->view.height;
}

double factorOf(const Scale& scale) {
    return static_cast<double>(scale.paper) / scale.model;
}

bool isSame(double one, double other) {
    return std::abs(one - other) <= kSameScale * other;
}

/// A scale that the list does not have: "1:37.5".
std::wstring ownName(double factor) {
    const double model = 1.0 / factor;
    std::wstring text = std::to_wstring(model);
    text.erase(text.find_last_not_of(L'0') + 1);
    if (text.back() == L'.')
        text.pop_back();
    return L"1:" + text;
}

}  // namespace

ToolbarEntries presetNames(const ToolbarScope& /*scope*/) {
    return {kPresets.begin(), kPresets.end()};
}

std::wstring currentPreset(const ToolbarScope& scope) {
    const Viewport* const viewport = activeViewport(scope);
    for (std::size_t i = 0; viewport != nullptr && i < kPresets.size(); ++i) {
        if (looksFrom(viewport->view, static_cast<PresetView>(i)))
            return kPresets[i];
    }
    return {};
}

void turnToPreset(const ToolbarScope& scope, const std::wstring& name) {
    const int preset = indexOfEntry(presetNames(scope), name);
    if (preset < 0)
        return;
    changeViewport(scope, [preset](Viewport& viewport) {
        turnTo(viewport.view, static_cast<PresetView>(preset));
        viewport.appliedView = {};
    });
}

ToolbarEntries viewNames(const ToolbarScope& scope) {
    ToolbarEntries names;
    const Database* const database = databaseOf(scope);
    if (database == nullptr)
        return names;
    for (const drawing::ObjectId id : database->ids(drawing::RecordKind::View))
        names.push_back(toWide(database->look<drawing::View>(id)->name));
    return names;
}

std::wstring appliedView(const ToolbarScope& scope) {
    const Viewport* const viewport = activeViewport(scope);
    if (viewport == nullptr)
        return {};
    const drawing::DbObject* const named = databaseOf(scope)->peek(viewport->appliedView.id);
    return named == nullptr || named->isErased() ? std::wstring() : toWide(named->name());
}

void restoreView(const ToolbarScope& scope, const std::wstring& name) {
    const Database* const database = databaseOf(scope);
    if (database == nullptr)
        return;
    const drawing::ObjectId id = database->find(drawing::RecordKind::View, toUtf8(name));
    const auto* const view = database->look<drawing::View>(id);
    if (view == nullptr)
        return;
    changeViewport(scope, [view, id](Viewport& viewport) {
        viewport.view = view->view;
        viewport.appliedView.id = id;
    });
}

ToolbarEntries scaleNames(const ToolbarScope& scope) {
    ToolbarEntries names;
    if (!scaleOf(activeViewport(scope)))
        return names;
    for (const Scale& scale : kScales)
        names.push_back(nameOf(scale));
    if (const std::wstring own = currentScale(scope); indexOfEntry(names, own) < 0)
        names.push_back(own);
    return names;
}

std::wstring currentScale(const ToolbarScope& scope) {
    const std::optional<double> factor = scaleOf(activeViewport(scope));
    if (!factor)
        return {};
    for (const Scale& scale : kScales) {
        if (isSame(*factor, factorOf(scale)))
            return nameOf(scale);
    }
    return ownName(*factor);
}

void setScale(const ToolbarScope& scope, const std::wstring& name) {
    const std::optional<double> present = scaleOf(activeViewport(scope));
    for (const Scale& scale : kScales) {
        if (!present || nameOf(scale) != name)
            continue;
        changeViewport(scope, [by = *present / factorOf(scale)](Viewport& viewport) {
            viewport.view.width *= by;
            viewport.view.height *= by;
            viewport.appliedView = {};
        });
    }
}

}  // namespace workbench
