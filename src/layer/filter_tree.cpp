#include "layer/filter_tree.h"

#include "controls/cmd_util.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "layer/filter_dropdown.h"
#include "layer/filter_refresh.h"
#include "layer/layer_filter_mgr.h"
#include "layer/layer_regeneration.h"
#include "layer/layer_walk.h"
#include "layer/picked_entities.h"
#include "layer/proxy_filters.h"

namespace {

constexpr UINT kApplyingPlaces =
    TVHT_ONITEMICON | TVHT_ONITEMLABEL | TVHT_ONITEMSTATEICON | TVHT_TOLEFT;

HTREEITEM findBelow(const CTreeCtrl& tree, HTREEITEM item, const VxString& text) {
    if (item == nullptr || tree.GetItemText(item) == text)
        return item;
    for (HTREEITEM child = tree.GetChildItem(item); child != nullptr;
         child = tree.GetNextSiblingItem(child)) {
        if (HTREEITEM found = findBelow(tree, child, text))
            return found;
    }
    return nullptr;
}

/// Whether a command changes what of the drawing is seen, in all viewports.
bool changesVisibility(UINT command) {
    return command >= kFilterLayersOn && command <= kFilterThaw;
}

}  // namespace

constexpr MessageEntry CVxDaFilterTreeCtrl::kMessages[] = {
    {WM_KILLFOCUS, to<&CVxDaFilterTreeCtrl::onFocusLost>},
    {WM_COMMAND, to<&CVxDaFilterTreeCtrl::onFilterMenu>, kFilterLayersOn,
     kFilterReplaceBySelection},
    {WM_LBUTTONDOWN, to<&CVxDaFilterTreeCtrl::onLeftPress>},
    {WM_RBUTTONDOWN, to<&CVxDaFilterTreeCtrl::onRightPress>},
    {WM_REFLECT_BASE + WM_NOTIFY, to<&CVxDaFilterTreeCtrl::onOwnNotice>},
};
const MessageMap CVxDaFilterTreeCtrl::kMessageMap =
    makeMessageMap(&CVxDaFilterTreeCtrl::GetThisMessageMap, kMessages);

CVxDaFilterTreeCtrl::CVxDaFilterTreeCtrl(CVxDaLayerFilterComboDropdown& dropdown)
    : m_dropdown(dropdown),
      m_manager(layerFilterMgr()) {}

const MessageMap& CVxDaFilterTreeCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaFilterTreeCtrl::onFocusLost(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    const LRESULT answer = Default();
    m_dropdown.hideIfLeft();
    return answer;
}

// What it shows

bool CVxDaFilterTreeCtrl::hasFilters() const {
    return m_manager != nullptr && m_manager->root() != nullptr;
}

bool CVxDaFilterTreeCtrl::rebuildTree() {
    if (!hasFilters())
        return false;
    SetImageList(&m_manager->images().merged(), TVSIL_NORMAL);
    DeleteAllItems();
    const HTREEITEM root = insertFilter(*m_manager->root(), TVI_ROOT);
    Expand(root, TVE_EXPAND);
    if (const VxLyLayerFilter* current = m_manager->current()) {
        if (HTREEITEM item = findItem(current->name())) {
            SelectItem(item);
            EnsureVisible(item);
        }
    }
    removeProxyFilters(*this, [this](const VxString& name) { return findItem(name); });
    return true;
}

HTREEITEM CVxDaFilterTreeCtrl::insertItem(const VxLyLayerFilter& filter, HTREEITEM parent) {
    const FilterPictures pictures = m_manager->images().add(filter);
    return InsertItem(filter.name().c_str(), pictures.normal, pictures.selected, parent, TVI_LAST);
}

/// Inserts a filter with those nested in it. Each level stands in the order of its texts.
HTREEITEM CVxDaFilterTreeCtrl::insertFilter(const VxLyLayerFilter& filter, HTREEITEM parent) {
    const HTREEITEM item = insertItem(filter, parent);
    const VxLyLayerFilterArray nested = filter.nestedFilters();
    for (const VxLyLayerFilter* inner : nested)
        insertFilter(*inner, item);
    if (!nested.empty())
        SortChildren(item);
    return item;
}

HTREEITEM CVxDaFilterTreeCtrl::findItem(const VxString& text) const {
    return findBelow(*this, GetRootItem(), text);
}

VxString CVxDaFilterTreeCtrl::selectedName() const {
    const HTREEITEM item = GetSelectedItem();
    return item == nullptr ? VxString() : GetItemText(item);
}

// Clicks

LRESULT CVxDaFilterTreeCtrl::onLeftPress(WPARAM /*keys*/, LPARAM point) {
    const LRESULT answer = Default();
    UINT where = 0;
    const HTREEITEM item = HitTest(pointFrom(point), &where);
    if (!hasFilters() || (where & kApplyingPlaces) == 0)
        return answer;
    SelectItem(item);
    m_manager->setCurrentFilter(GetItemText(item));
    m_dropdown.hide();
    return answer;
}

LRESULT CVxDaFilterTreeCtrl::onRightPress(WPARAM /*keys*/, LPARAM point) {
    const LRESULT answer = Default();
    const CPoint place = pointFrom(point);
    UINT where = 0;
    SelectItem(HitTest(place, &where));
    if (m_manager != nullptr)
        m_menu.open(m_manager->findFilter(selectedName()), ClientToScreen(place), this);
    return answer;
}

LRESULT CVxDaFilterTreeCtrl::onOwnNotice(WPARAM /*unused*/, LPARAM notice) {
    const auto* head = reinterpret_cast<const NMHDR*>(notice);
    if (head->code == TVN_ENDLABELEDIT) {
        const auto* edited = reinterpret_cast<const NMTVDISPINFO*>(notice);
        onLabelEdited(edited->item, edited->text);
        // The label's own field may have lost the keyboard to somebody else.
        m_dropdown.hideIfLeft();
    }
    // The tree never takes a label: what a filter is called comes from the filter.
    return 0;
}

void CVxDaFilterTreeCtrl::onLabelEdited(HTREEITEM item, const wchar_t* text) {
    if (text == nullptr || m_manager == nullptr)
        return;
    if (m_manager->renameFilter(GetItemText(item), text))
        rebuildTree();
}

// Commands

LRESULT CVxDaFilterTreeCtrl::onFilterMenu(WPARAM command, LPARAM /*unused*/) {
    onFilterCommand(LOWORD(command));
    return 0;
}

void CVxDaFilterTreeCtrl::onFilterCommand(UINT command) {
    const VxString name = selectedName();
    if (name.empty() || m_manager == nullptr)
        return;
    const VxDbObjectIdArray layers =
        changesVisibility(command) ? collectLayerIds() : VxDbObjectIdArray();
    runCommand(command, name);
    if (!layers.empty())
        regenerateLayers(layers, *this);
}

void CVxDaFilterTreeCtrl::runCommand(UINT command, const VxString& name) {
    switch (command) {
    case kFilterNewGroup:
        addGroup(name);
        break;
    case kFilterConvertToGroup:
        convertToGroup(name);
        break;
    case kFilterRename:
        editSelectedLabel();
        break;
    case kFilterDelete:
        if (m_manager->deleteFilter(name))
            rebuildTree();
        break;
    case kFilterAddSelection:
    case kFilterReplaceBySelection:
        addSelection(name, command == kFilterReplaceBySelection);
        break;
    default:
        changeLayers(command, name);
    }
}

void CVxDaFilterTreeCtrl::changeLayers(UINT command, const VxString& name) {
    switch (command) {
    case kFilterLayersOn:
    case kFilterLayersOff:
        m_manager->setLayersOn(name, command == kFilterLayersOn);
        break;
    case kFilterFreeze:
    case kFilterThaw:
        m_manager->setLayersFrozen(name, command == kFilterFreeze);
        break;
    case kFilterLock:
    case kFilterUnlock:
        m_manager->setLayersLocked(name, command == kFilterLock);
        break;
    case kFilterFreezeInViewport:
    case kFilterThawInViewport:
        m_manager->setLayersFrozenInViewport(name, command == kFilterFreezeInViewport);
        break;
    case kFilterIsolateInViewport:
        m_manager->isolateGroupActiveViewport(name);
        break;
    case kFilterIsolateEverywhere:
        m_manager->isolateGroupAllViewports(name);
        break;
    default:
        break;
    }
}

void CVxDaFilterTreeCtrl::addGroup(const VxString& parentName) {
    const VxString name = m_manager->addGroupFilter(parentName);
    const VxLyLayerFilter* group = m_manager->findFilter(name);
    if (group == nullptr)
        return;
    const HTREEITEM item = insertItem(*group, GetSelectedItem());
    EnsureVisible(item);
    EditLabel(item);
}

void CVxDaFilterTreeCtrl::convertToGroup(const VxString& name) {
    m_manager->convertToGroup(name);
    // Kept as it is: a second refresh after a success, because after a failure it is the one that
    // discards what was changed in part.
    refreshFilterCombos();
    rebuildTree();
}

void CVxDaFilterTreeCtrl::editSelectedLabel() {
    const HTREEITEM item = GetSelectedItem();
    EnsureVisible(item);
    EditLabel(item);
}

void CVxDaFilterTreeCtrl::addSelection(const VxString& name, bool replace) {
    m_dropdown.hide();
    if (const auto entities = pickEntities())
        m_manager->addSelectionToGroup(name, replace, *entities);
}
