#pragma once

#include <hostapi/types.h>

/// A picture of a library by its key, `size` pixels wide and high; null if the library is null or
/// has none. `flags` is -1 for the toolkit's own choice. Owned by the caller until handed over.
HBITMAP QrUiLoadImageFromResource(HINSTANCE library, const wchar_t* key, int size, int flags);
/// A picture of a file; null if it can't be read. Owned by the caller until handed over.
HBITMAP LoadBitmapFileGdiPlus(const wchar_t* fileName);
/// A picture with the look of an icon, which stays the caller's; null if there is no such icon. Owned by
/// the caller until handed over.
HBITMAP BitmapFromIconGdiPlus(HICON icon);
