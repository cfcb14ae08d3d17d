#pragma once

/// The two watchers of visual styles. They are module-wide and counted: made with the panels, ended
/// when the host releases the controls as often.

/// Makes what is missing and counts both up.
void acquireStyleReactors();
/// Counts both down; each ends when its count reaches zero. A count may go below zero.
void releaseStyleReactors();
/// Ends what is left of both, whatever their counts, and starts counting anew.
void deleteStyleReactors();

/// Brings the visual-style controls in line with the drawing; nothing without the watcher.
void updateVisualStyleState();
