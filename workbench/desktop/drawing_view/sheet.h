#pragma once

#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"

#include <QRect>
#include <QSize>

namespace workbench::desktop {

/// A layout's paper on the screen: all of it, in the middle of the room.
class Sheet {
public:
    /// `room` is in pixels.
    Sheet(const drawing::Layout& layout, const QSize& room);

    /// Where the paper lies, in pixels; empty in a room too small for any.
    const QRect& place() const { return m_place; }
    /// Where a viewport of the layout lies on it.
    QRect placeOf(const drawing::Viewport& viewport) const;

private:
    double m_scale;  // pixels a millimetre
    QRect m_place;
};

}  // namespace workbench::desktop
