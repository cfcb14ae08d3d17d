#pragma once

#include "workbench/toolkit/shade.h"

#include <QColor>

namespace workbench::desktop {

/// The colours that all of the window is drawn with.
struct Look {
    QColor frame;         ///< behind and between panels
    QColor panel;         ///< behind tools
    QColor title;         ///< behind a panel's title
    QColor text;          ///< on all of these
    QColor dimText;       ///< of what is disabled
    QColor line;          ///< borders and separators
    QColor edge;          ///< around fields and thumbs
    QColor thumb;         ///< of sliders
    QColor field;         ///< behind a text that can be edited
    QColor fieldText;     ///< in a field
    QColor accent;        ///< focus, checked tools, the filled part of a slider
    QColor accentText;    ///< on the accent
    QColor hover;         ///< behind a tool under the mouse
    QColor link;          ///< of links
    QColor balloon;       ///< behind a balloon's text
    QColor balloonText;   ///< in a balloon
    QColor drawing;       ///< behind the drawing
    QColor drawingLines;  ///< of the drawing's frame and axes
};

/// The colours of a shade.
const Look& lookOf(Shade shade);

}  // namespace workbench::desktop
