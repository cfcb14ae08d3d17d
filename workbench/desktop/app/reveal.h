#pragma once

class QWidget;

namespace workbench::desktop {

struct SearchHit;
struct Stage;
class WindowMirror;

/// Brings what a search has found before the user: shows the dashboard and the panel, rolls it down,
/// scrolls to it and marks it for a while.
void reveal(Stage& stage, WindowMirror& mirror, const SearchHit& hit);
/// The widget of the small frame in which the dashboard floats on show; null if it doesn't.
QWidget* floatingDashboard(Stage& stage, WindowMirror& mirror);

}  // namespace workbench::desktop
