#pragma once

/// The watcher of visual styles. It is module-wide and counted: made with the panels, ended when the
/// host releases the controls as often.

/// Makes it, if it is missing and uncounted, and counts up.
void acquireStyleReactors();
/// Counts down; it ends when the count reaches zero. The count may go below zero.
void releaseStyleReactors();
/// Ends it, whatever the count, and starts counting anew.
void deleteStyleReactors();

/// Brings the visual-style controls in line with the drawing; nothing without the watcher.
void updateVisualStyleState();
