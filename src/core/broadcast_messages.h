#pragma once

#include <hostapi/types.h>

/// Messages that every custom control gets when something happened in the host. wParam is 0 where
/// nothing else is said. Names and documents in lParam are good during the message only.

constexpr UINT WM_DA_DOC_TO_BE_ACTIVATED = 1724;  ///< lParam: the document.
constexpr UINT WM_DA_LAST_DOC_DESTROYED = 1725;   ///< lParam: its file name.
constexpr UINT WM_DA_DOC_BECAME_CURRENT = 1726;   ///< lParam: the document.
constexpr UINT WM_DA_SYSVAR_CHANGED = 1727;       ///< wParam: success; lParam: the name.
constexpr UINT WM_DA_SYSVAR_WILL_CHANGE = 1728;   ///< lParam: the variable's name.
constexpr UINT WM_DA_COMMAND_STARTED = 1729;      ///< Also for a failed one. lParam: its name.
constexpr UINT WM_DA_COMMAND_ENDED = 1730;        ///< lParam: the command's name.
constexpr UINT WM_DA_COMMAND_CANCELLED = 1731;    ///< lParam: the command's name.
constexpr UINT WM_DA_VIEW_CHANGED = 1736;         ///< lParam: 0.
constexpr UINT WM_DA_DOC_TO_BE_DESTROYED = 1737;  ///< lParam: the document.
