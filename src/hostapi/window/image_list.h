#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/gdi.h>
#include <hostapi/window/wnd.h>

/// Handle of an image list.
using HIMAGELIST = struct HIMAGELIST__*;

/// Pictures of one size, by index. The object owns its list until `Detach` or its end.
class VXHOST CImageList : public CObject {
public:
    CImageList() = default;
    ~CImageList() override;

    /// The list, null for none. Written by the framework only.
    HIMAGELIST m_hImageList = nullptr;

    /// Makes an empty list of pictures of a size. `flags` are `ILC_...` bits; `initial` is the room taken
    /// at first and `grow` that taken when it is full. Returns 0 on failure.
    BOOL Create(int width, int height, UINT flags, int initial, int grow);
    /// Takes a list. Returns 0 for null.
    BOOL Attach(HIMAGELIST list);
    /// Gives the list away; the object has none then.
    HIMAGELIST Detach();
    /// Ends the list. Returns 0 without one.
    BOOL DeleteImageList();
    /// The number of pictures; 0 without a list.
    int GetImageCount() const;
    /// Cuts the list off at the end, or adds empty pictures. Returns 0 on failure.
    BOOL SetImageCount(UINT count);
    /// The colour behind the pictures; returns the earlier one.
    COLORREF SetBkColor(COLORREF colour);
    /// Adds the pictures that stand side by side in a bitmap, where `mask` is the colour of what is not
    /// drawn. Returns the index of the first one, -1 on failure.
    int Add(const CBitmap* bitmap, COLORREF mask);
    /// An icon with the look of a picture, owned by the caller; null outside.
    HICON ExtractIcon(int index) const;
    /// Puts an icon, which stays the caller's, in the place of a picture. Returns the index, -1 on failure.
    int Replace(int index, HICON icon);
};

constexpr UINT ILC_MASK = 0x01;     ///< Pictures have parts that are not drawn.
constexpr UINT ILC_COLOR24 = 0x18;  ///< Pictures have 24 bits of colour.
