#pragma once

#include <hostapi/types.h>
#include <hostapi/vxdashboard.h>

#include <string_view>
#include <unordered_map>

/// Which items were built for an ID; one ID may stand on several panels. The items belong to their
/// tool panels.
class VxDaItemIndex {
public:
    /// Enters an item under an ID, behind those that stand there.
    void add(const VxString& id, CQrUiToolPanelItem* item);
    /// Takes an item out. Its ID stays known, with the items that are left.
    void remove(const VxString& id, const CQrUiToolPanelItem* item);
    /// Forgets all.
    void clear() { m_items.clear(); }
    /// The items of an ID, exact; null if it was never entered. Good until `clear`.
    const VxDaToolPanelItems* find(std::wstring_view id) const;

private:
    /// Takes literals and strings alike, so that a look-up copies no text.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::wstring_view id) const {
            return std::hash<std::wstring_view>{}(id);
        }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(std::wstring_view left, std::wstring_view right) const {
            return left == right;
        }
    };
    static constexpr std::size_t kFirstTableSize = 17;

    std::unordered_map<VxString, VxDaToolPanelItems, Hash, Equal> m_items{kFirstTableSize};
};
