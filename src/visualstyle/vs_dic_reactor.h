#pragma once

/// Stands for the watch over the drawing's list of visual styles. Its use is counted like that of
/// the watch over the current style; the lists of styles that it serves register with it.
class CVxDaVSDicReactor {};
