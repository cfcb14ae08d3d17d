#pragma once

/// Brings the navigation panels' tools in line with the drawing and the navigation tool: camera,
/// projections, animation. Nothing while the dashboard is not on screen, and no item is touched that
/// stands as it should.
void UpdateToolbarState();
