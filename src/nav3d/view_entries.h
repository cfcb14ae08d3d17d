#pragma once

#include <hostapi/qrui18/combo.h>
#include <hostapi/vxdb18/database.h>

#include <memory>
#include <vector>

/// Codes of the entries of the view list; 0 to 9 are the preset views.
constexpr int kViewEntryNamed = 10;
constexpr int kViewEntryCurrent = 11;
constexpr int kViewEntryNew = 12;
constexpr int kViewEntryManager = 13;
constexpr int kPresetViewCount = 10;

/// An entry of the view list; its separators are plain records.
struct ViewComboItem : QRUI_COMBO_CTRL_ITEM {
    int code = kViewEntryCurrent;
    VxDbObjectId viewId;  ///< Of a named view; null for all others.
};

/// A new entry of a code other than that of named views, with its text and picture.
std::unique_ptr<ViewComboItem> makeViewEntry(int code);
/// A new line between entries.
std::unique_ptr<QRUI_COMBO_CTRL_ITEM> makeViewSeparator();
/// The entries of the working database's named views, ascending by the user's language. A view that
/// can't be opened or named is left out.
std::vector<std::unique_ptr<ViewComboItem>> makeNamedViewEntries();

/// What is sent to the command line when an entry is chosen; empty for none, as for a named view that
/// can't be opened.
VxString viewCommandOf(const ViewComboItem& entry);
