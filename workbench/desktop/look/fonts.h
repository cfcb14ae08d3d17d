#pragma once

#include <QFont>

struct LOGFONT;

namespace workbench::desktop {

/// The family of all texts, so that pictures are the same everywhere.
inline constexpr const char* kFontFamily = "DejaVu Sans";
inline constexpr const char* kFieldFontFamily = "DejaVu Sans Mono";
inline constexpr int kTextHeight = 11;   ///< Pixels.
inline constexpr int kFieldHeight = 10;  ///< Pixels, of the texts in fields.

/// The font of a host's font; the usual one for null.
QFont fontOf(const LOGFONT* font);
/// The font of edit fields, whose characters all have the same room.
QFont fieldFont();

}  // namespace workbench::desktop
