#pragma once

#include "workbench/core/journal.h"
#include "workbench/drawing/preset_views.h"
#include "workbench/navigation/graphics_system.h"
#include "workbench/navigation/tool.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace workbench {

class Document;
class Editor;
class ModuleLoader;

/// How far the recording of an animation is.
enum class AnimationState { None, Recording, Paused, Playing };

/// Interactive navigation: the tool that runs while the user orbits, walks or flies, its modes, the
/// recording of an animation, and the graphics system whose views it turns.
class NavigationTool {
public:
    /// \name Modes
    /// @{
    static constexpr int kPan = 2;
    static constexpr int kZoom = 3;
    static constexpr int kConstrainedOrbit = 4;
    static constexpr int kContinuousOrbit = 5;
    static constexpr int kSwivel = 9;
    static constexpr int kDistance = 10;
    static constexpr int kWalk = 17;
    static constexpr int kFly = 18;
    static constexpr int kFreeOrbit = 22;
    static constexpr int kParallelProjection = 4315;     ///< changes the view; the mode stays
    static constexpr int kPerspectiveProjection = 4316;  ///< likewise
    /// @}

    /// Adds the commands that start the tool to the editor's. All of them must outlive it.
    NavigationTool(Editor& editor, ModuleLoader& modules, Journal& journal);
    NavigationTool(const NavigationTool&) = delete;
    NavigationTool& operator=(const NavigationTool&) = delete;
    ~NavigationTool();

    bool isRunning() const { return m_tool.has_value(); }
    /// The running tool; null for none.
    CTool* tool() { return m_tool ? &*m_tool : nullptr; }
    /// The mode of the running tool; 0 for none.
    int mode() const { return m_tool ? m_tool->mode() : 0; }
    /// What kind of navigation runs: 0 none, 1 orbiting and its like, 2 walking or flying.
    int activity() const;

    /// Starts the tool. False if it runs already. What it does to a view up to its stop is one step of
    /// the viewport's history.
    bool start(int mode);
    void stop();
    /// Changes the mode of the running tool, or its view's projection; nothing while none runs.
    void switchMode(int mode);
    /// Shows the settings of walking and flying.
    void showWalkSettings();

    // What the running tool does with the current viewport's view, unless that is locked; the host is
    // told of the change.

    /// Millimetres; nothing for a lens that isn't above 0.
    void setLens(double lens);
    void restorePreset(drawing::PresetView preset);
    /// Takes the parameters of a named view; nothing for another object.
    void restoreNamed(drawing::ObjectId view);
    /// Moves one end of the line of sight, at the same angle of view; nothing if it met the other.
    void moveCamera(const drawing::Vec3& eye);
    void moveTarget(const drawing::Vec3& target);

    AnimationState animation() const { return m_animation; }
    /// Starts recording, or goes on with it; nothing while no tool runs. The views that the tool shows
    /// meanwhile are recorded, until it stops: then all of them are forgotten.
    void recordAnimation();
    /// Pauses the recording; nothing while none is under way.
    void pauseRecording();
    /// Shows the recorded views one after the other, to the last one, and is paused then. Nothing if
    /// nothing was recorded.
    void playAnimation();
    /// Asks where what was recorded is to be saved; nothing if nothing was.
    void saveAnimation();
    void showAnimationSettings();

    /// How many views are recorded.
    std::size_t recordedViews() const { return m_recorded.size(); }

    /// Notes in the journal that a module had one of the tool's functions called.
    void noteFunction(const char* name, Value::List arguments = {});

    GraphicsSystem& graphics() { return m_graphics; }

private:
    /// What the current viewport shows; nothing without one.
    std::optional<drawing::ViewParameters> shown() const;
    /// Has it show something else, a named view or, for null, none.
    void show(const drawing::ViewParameters& view, drawing::ObjectId named = {});
    void aim(const drawing::Vec3& eye, const drawing::Vec3& target);
    void setAnimation(AnimationState state);
    void showDialog(const char* name);
    void noteMode();

    Editor& m_editor;
    ModuleLoader& m_modules;
    Journal& m_journal;
    GraphicsSystem m_graphics;
    std::optional<CTool> m_tool;  // nothing: none runs
    Document* m_started =
        nullptr;  // the document it was started in, which may have gone; null: none
    AnimationState m_animation = AnimationState::None;
    std::vector<drawing::ViewParameters> m_recorded;  // in the order in which they were shown
};

}  // namespace workbench
