#pragma once

#include <hostapi/types.h>

/// One of the host's own toolbar controls that can stand in a panel.
struct ToolbarControlRow {
    const wchar_t* name;     ///< In the menu data; compared without regard to case.
    UINT hostId;             ///< By which the host knows it.
    const wchar_t* iconKey;  ///< Null: no icon.
};

/// In search order.
inline constexpr ToolbarControlRow kToolbarControls[] = {
    {L"LayerControl", 1111, nullptr},
    {L"LineTypeControl", 2222, L"RCDATA_OPLTYPE_ICON"},
    {L"OPTColorControl", 3333, L"RCDATA_OPCOLOR_ICON"},
    {L"LineWeightControl", 4444, L"RCDATA_OPLWEIGHT_ICON"},
    {L"RefblknameControl", 5555, nullptr},
    {L"ViewControl", 6666, nullptr},
    {L"NamedViewControl", 6667, nullptr},
    {L"ViewportScaleControl", 7777, nullptr},
    {L"PlotStyleControl", 8888, L"RCDATA_OPPSTYLE_ICON"},
    {L"UCSControl", 9999, nullptr},
    {L"DimStyleControl", 11111, nullptr},
    {L"TxtStyleControl", 11117, nullptr},
    {L"TblStyleControl", 11118, nullptr},
    {L"WorkspacesControl", 11119, nullptr},
    {L"UndoSkinnyButtonControl", 44445, nullptr},
    {L"RedoSkinnyButtonControl", 55556, nullptr},
    {L"MldStyleControl", 11120, nullptr},
    {L"FindTextControl", 11122, nullptr},
};
