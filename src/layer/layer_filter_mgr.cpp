#include "layer/layer_filter_mgr.h"

#include "controls/cmd_util.h"
#include "core/host_objects.h"
#include "core/module_call.h"
#include "core/text.h"
#include "layer/filter_refresh.h"
#include "layer/layer_texts.h"

#include <hostapi/window/wnd.h>
#include <hostapi/zorq/documents.h>

#include <string>

namespace {

const wchar_t* const kSetCurrentFormat = L"'._-layer _filter _set %ls\n\n";
constexpr const wchar_t* kGroupNameKey = L"GroupFilter";

bool isInTree(const VxLyLayerFilter* wanted, const VxLyLayerFilter& tree) {
    if (wanted == &tree)
        return true;
    for (const VxLyLayerFilter* nested : tree.nestedFilters()) {
        if (isInTree(wanted, *nested))
            return true;
    }
    return false;
}

}  // namespace

CVxDaLayerFilterMgr::~CVxDaLayerFilterMgr() = default;

// The copy

void CVxDaLayerFilterMgr::refreshFilters() {
    VxApDocument* document = currentDocument();
    loadFilters(document == nullptr ? nullptr : document->database());
}

int CVxDaLayerFilterMgr::loadFilters(VxDbDatabase* database) {
    if (database == nullptr)
        return 0;
    VxLyLayerFilterManager* filters = vxlyGetLayerFilterManager(database);
    if (filters == nullptr)
        return 0;
    m_current = nullptr;
    freeAfterCall(std::move(m_root));
    VxLyLayerFilter* root = nullptr;
    VxLyLayerFilter* current = nullptr;
    if (filters->getFilters(root, current) != Zorq::eOk)
        return 0;
    m_root.reset(root);
    m_current = current == nullptr ? root : current;
    m_images.clear();
    return 1;
}

int CVxDaLayerFilterMgr::saveFilters() {
    VxApDocument* document = currentDocument();
    if (document == nullptr)
        return 0;
    const VxAxDocLock lock(document);
    VxLyLayerFilterManager* filters = vxlyGetLayerFilterManager(document->database());
    if (filters == nullptr)
        return 0;
    filters->setFilters(m_root.get(), m_current);
    return 1;
}

/// The current filter may have gone with another that it was nested in.
void CVxDaLayerFilterMgr::forgetLostCurrent() {
    if (m_root == nullptr || !isInTree(m_current, *m_root))
        m_current = nullptr;
}

// Filters by name

VxLyLayerFilter* CVxDaLayerFilterMgr::findFilter(const VxString& name, VxLyLayerFilter* start) {
    if (name.empty() || start == nullptr)
        return nullptr;
    if (equalNoCase(name, start->name()))
        return start;
    for (VxLyLayerFilter* nested : start->nestedFilters()) {
        if (VxLyLayerFilter* found = findFilter(name, nested))
            return found;
    }
    return nullptr;
}

VxLyLayerFilter* CVxDaLayerFilterMgr::findFilter(const VxString& name) const {
    return findFilter(name, m_root.get());
}

int CVxDaLayerFilterMgr::setCurrentFilter(const VxString& name) {
    if (name.empty())
        return 0;
    m_current = findFilter(name);
    // The host changes the filter in force, and the end of its command brings that here.
    if (m_current != nullptr)
        sendHostCommand(formatText(kSetCurrentFormat, name.c_str()).c_str());
    return 1;
}

VxString CVxDaLayerFilterMgr::uniqueFilterName(const VxString& base) const {
    for (int number = 1;; ++number) {
        VxString name = base + std::to_wstring(number);
        if (findFilter(name) == nullptr)
            return name;
    }
}

// Changes of the tree

VxString CVxDaLayerFilterMgr::addGroupFilter(const VxString& parentName) {
    VxLyLayerFilter* parent = findFilter(parentName);
    if (parent == nullptr || !parent->allowNested())
        return {};
    VxString name = uniqueFilterName(CVxDaLyCtrlMgdResMgr::GetLocalResString(kGroupNameKey));
    std::unique_ptr<VxLyLayerGroup> group(new VxLyLayerGroup);
    if (group == nullptr)
        return {};
    group->setName(name);
    if (parent->addNested(group.get()) != Zorq::eOk)
        return {};
    group.release();  // NOLINT(bugprone-unused-return-value): the parent's now
    saveFilters();
    return name;
}

bool CVxDaLayerFilterMgr::renameFilter(const VxString& name, const VxString& newName) {
    // Kept as it is: a change of case alone counts as none, because names go without regard to case.
    if (CollateNoCase(name, newName) == 0)
        return false;
    if (validateFilterName(trimmed(newName)) != Zorq::eOk)
        return false;
    VxLyLayerFilter* filter = findFilter(name);
    if (filter == nullptr)
        return false;
    if (filter->allowRename()) {
        // Kept as it is: the blanks around the name stay, because they are what the user typed.
        filter->setName(newName);
        saveFilters();
        refreshFilterCombos();
    }
    return true;
}

bool CVxDaLayerFilterMgr::deleteFilter(const VxString& name) {
    VxLyLayerFilter* filter = findFilter(name);
    if (filter == nullptr)
        return false;
    VxLyLayerFilter* parent = filter->parent();
    if (!filter->allowDelete() || parent == nullptr)
        return true;
    if (filter == m_current)
        m_current = m_root.get();
    if (parent->removeNested(filter) != Zorq::eOk)
        return true;
    std::unique_ptr<VxLyLayerFilter> removed(filter);
    saveFilters();
    refreshFilterCombos();
    forgetLostCurrent();
    freeAfterCall(std::move(removed));
    return true;
}
