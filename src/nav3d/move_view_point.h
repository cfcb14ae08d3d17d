#pragma once

#include <hostapi/vxge18.h>

/// A camera's place and what it looks at.
struct CameraPoints {
    VxGePoint3d eye;
    VxGePoint3d target;
};

/// The up vector for a camera: square to the direction of view.
///
/// Kept as it is: it is made anew from the direction alone, so that the roll of a camera is lost when
/// one of its points moves.
VxGeVector3d upVectorOf(const CameraPoints& camera);

/// Moves a point of the current viewport's view, and scales what the view shows with the distance, so
/// that the picture keeps its angle. Nothing happens in a locked viewport or if the points would
/// coincide. Otherwise the view before it can be undone to. Nobody is told.
void MoveViewPoint(const VxGePoint3d& point, bool isEye);
