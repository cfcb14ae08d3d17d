#pragma once

/// Whether the current viewport's view is in perspective; while a navigation tool runs, whether the
/// view that it shows is.
bool IsPerspectiveView();
