#include "layer/layer_state_combo.h"

#include "controls/cmd_util.h"
#include "controls/doc_lock.h"
#include "core/broadcast_messages.h"
#include "core/event_names.h"
#include "core/host_objects.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/module_call.h"
#include "core/resources.h"
#include "core/text.h"
#include "layer/layer_regeneration.h"
#include "layer/layer_walk.h"
#include "layer/restore_flags.h"
#include "palette/tool_items.h"

#include <hostapi/vxdb18/layer_state_manager.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/layers.h>
#include <hostapi/zorq/views.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

namespace {

constexpr const wchar_t* kControlName = L"LayerStateComboControl";
// Child, visible, vertical scroll bar, an owner-drawn drop-down list with strings.
constexpr DWORD kStyle = 0x50310223;
constexpr int kListHeight = 300;  // pixels
constexpr UINT kStrSave = 225;
constexpr UINT kStrManage = 226;
constexpr UINT kStrTip = 227;
constexpr UINT kStrNoState = 260;
constexpr int kNoRow = -1;
constexpr int kNoStateRow = 0;
// The name may hold blanks, so that only new lines end it; the last two end the command.
const wchar_t* const kRestoreFormat = L"_-layer\nstate\nrestore\n%ls\n\n\n";
constexpr int kRestoreFlag = 1;
constexpr bool kWithHidden = false;
constexpr bool kWithReferenced = true;

constexpr std::wstring_view kCommandNames[] = {L"LAYERSTATE", L"LAYER", L"-LAYER", L"+LAYER",
                                               L"U",          L"UNDO",  L"REDO"};
constexpr EventNames kLayerCommands{kCommandNames, NameMatch::AnyCase};

/// What the host answers to restoring a state: what counts as done, and what tells that the state is
/// gone.
constexpr Zorq::ErrorStatus kRestored[] = {Zorq::eOk, 162, 173, 384};
constexpr Zorq::ErrorStatus kGone[] = {3, 22, 374};

template <std::size_t Count>
bool isOneOf(Zorq::ErrorStatus status, const Zorq::ErrorStatus (&known)[Count]) {
    return std::find(std::begin(known), std::end(known), status) != std::end(known);
}

std::vector<CVxDaLayerStateComboCtrl*> s_combos;  // in order of construction; not owned

void rebuildAllLayerStateCombos() {
    // By index: what is called may end a combo or make another.
    for (std::size_t i = 0; i < s_combos.size(); ++i)
        s_combos[i]->rebuild();
}

void selectInAllLayerStateCombos(int index) {
    for (std::size_t i = 0; i < s_combos.size(); ++i)
        s_combos[i]->SetCurSel(index);
}

}  // namespace

constexpr MessageEntry CVxDaLayerStateComboCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDaLayerStateComboCtrl::onCreate>},
    {WM_DA_DOC_TO_BE_ACTIVATED, to<&CVxDaLayerStateComboCtrl::onDocumentToBeActivated>},
    {WM_DA_LAST_DOC_DESTROYED, to<&CVxDaLayerStateComboCtrl::onLastDocumentDestroyed>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDaLayerStateComboCtrl::onDocumentCurrent>},
    {WM_DA_COMMAND_ENDED, to<&CVxDaLayerStateComboCtrl::onCommandEnded>},
    {WM_REFLECT_BASE + WM_COMMAND, to<&CVxDaLayerStateComboCtrl::onOwnNotice>},
};
const MessageMap CVxDaLayerStateComboCtrl::kMessageMap =
    makeMessageMap(&CVxDaLayerStateComboCtrl::GetThisMessageMap, kMessages);

std::unique_ptr<CWnd> CVxDaLayerStateComboCtrl::make(CWnd* parent, const CRect& rect, UINT id) {
    auto combo = std::make_unique<CVxDaLayerStateComboCtrl>();
    if (!combo->Create(kStyle, {0, 0, rect.Width(), kListHeight}, parent, id))
        return nullptr;
    return combo;
}

CVxDaLayerStateComboCtrl::CVxDaLayerStateComboCtrl() : m_document(currentDocument()) {
    s_combos.push_back(this);
}

CVxDaLayerStateComboCtrl::~CVxDaLayerStateComboCtrl() {
    std::erase(s_combos, this);
}

const MessageMap& CVxDaLayerStateComboCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaLayerStateComboCtrl::onCreate(WPARAM /*unused*/, LPARAM /*create*/) {
    if (Default() == -1)
        return -1;
    const VxString tip = loadDashboardString(kStrTip);
    setItemName(kControlName, tip);
    if (m_toolTip.Create(this)) {
        m_toolTip.SendMessage(TTM_ACTIVATE, 1);
        m_toolTip.AddTool(this, tip);
    }
    buildLayerStateList();
    return 0;
}

BOOL CVxDaLayerStateComboCtrl::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (m_toolTip.m_hWnd != nullptr)
        m_toolTip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(msg));
    return ModuleWindow::PreTranslateMessage(msg);
}

// The list

void CVxDaLayerStateComboCtrl::rebuild() {
    if (m_hWnd == nullptr)
        return;
    enable();
    ResetContent();
    buildLayerStateList();
}

void CVxDaLayerStateComboCtrl::buildLayerStateList() {
    addRow(loadDashboardString(kStrNoState));
    addRow({}, 1);
    VxDbDatabase* database = workingDatabase();
    if (database == nullptr) {
        selectNone();
        return;
    }
    CStringArray names;
    const VxDbLayerStateManager states(database);
    if (states.getLayerStateNames(names, kWithHidden, kWithReferenced) == Zorq::eOk)
        readLastRestored(*database);
    else
        names.clear();
    addStates(names);
    addRow(loadDashboardString(kStrSave));
    addRow(loadDashboardString(kStrManage));
}

/// The name stays only while the drawing is as the state says.
void CVxDaLayerStateComboCtrl::readLastRestored(VxDbDatabase& database) {
    const VxDbLayerStateManager states(&database);
    if (states.getLastRestoredLayerState(m_lastRestored) != Zorq::eOk) {
        m_lastRestored.clear();
        return;
    }
    const VxDbObjectId viewport = vxedGetCurViewportObjectId();
    if (!states.compareLayerStateToDb(m_lastRestored.c_str(), viewport))
        m_lastRestored.clear();
}

void CVxDaLayerStateComboCtrl::addStates(const CStringArray& names) {
    if (names.empty()) {
        selectNone();
        return;
    }
    for (const VxString& name : names)
        addRow(name);
    addRow({}, 1);
    if (m_lastRestored.empty())
        selectNone();
    else
        selectText(m_lastRestored);
}

void CVxDaLayerStateComboCtrl::addRow(const VxString& text, BOOL separator) {
    auto row = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
    row->text = text;
    row->separator = separator;
    AddItem(row.release());
}

void CVxDaLayerStateComboCtrl::enable() {
    if (!IsWindowEnabled())
        EnableWindow(1);
}

void CVxDaLayerStateComboCtrl::selectNone() {
    enable();
    SetCurSel(kNoStateRow);
}

void CVxDaLayerStateComboCtrl::selectText(const VxString& text) {
    for (int row = 0; row < GetCount(); ++row) {
        if (GetItem(row)->text == text) {
            SetCurSel(row);
            return;
        }
    }
}

// Choices

LRESULT CVxDaLayerStateComboCtrl::onOwnNotice(WPARAM notice, LPARAM /*control*/) {
    if (HIWORD(notice) == CBN_SELCHANGE)
        onSelected();
    return 0;
}

void CVxDaLayerStateComboCtrl::onSelected() {
    const int row = GetCurSel();
    if (row == kNoRow || row == kNoStateRow)
        return;
    const int last = GetCount() - 1;
    if (row == last)
        openDialog(vxedLayerStateManagerDialog);
    else if (row == last - 1)
        openDialog(vxedLayerStateSaveDialog);
    else
        restoreState(row);
}

void CVxDaLayerStateComboCtrl::openDialog(int (*dialog)(CWnd* owner)) {
    VxApDocument* document = currentDocument();
    if (document == nullptr)
        return;
    const VxAxDocLock lock(document);
    dialog(GetActiveWindow());
    rebuildAllLayerStateCombos();
}

void CVxDaLayerStateComboCtrl::restoreState(int row) {
    const QRUI_COMBO_CTRL_ITEM* item = GetItem(row);
    VxDbDatabase* database = workingDatabase();
    if (item == nullptr || item->text.empty() || database == nullptr)
        return;
    const VxString name = item->text;
    const VxAxDocLock lock(database, kLockForWrite);
    VxDbLayerStateManager states(database);
    const VxDbObjectId viewport = vxedGetCurViewportObjectId();
    const int flags = readRestoreFlags();
    const VxDbObjectIdArray layers = collectLayerIds();
    onRestored(states.restoreLayerState(name.c_str(), viewport, flags, nullptr), row, name, layers);
}

void CVxDaLayerStateComboCtrl::onRestored(Zorq::ErrorStatus status, int row, const VxString& name,
                                          const VxDbObjectIdArray& layers) {
    if (isOneOf(status, kRestored)) {
        // Kept as it is: the state is restored a second time, because the command brings the
        // regeneration and the step of undo.
        sendRestoreCommand(name, layers);
        selectInAllLayerStateCombos(row);
    } else if (isOneOf(status, kGone)) {
        DeleteItem(row);
        selectInAllLayerStateCombos(kNoRow);
    }
}

void CVxDaLayerStateComboCtrl::sendRestoreCommand(const VxString& name,
                                                  const VxDbObjectIdArray& layers) {
    if (layers.empty() || name.empty())
        return;
    {
        const CWaitCursor waiting;
        enterMainWindow();
        runHostCommand(formatText(kRestoreFormat, name.c_str()), kRestoreFlag);
    }
    SetFocus();
}

// What the host tells

LRESULT CVxDaLayerStateComboCtrl::onCommandEnded(WPARAM /*unused*/, LPARAM name) {
    if (kLayerCommands.contains(eventNameFrom(name)))
        rebuild();
    return 0;
}

// Kept as it is: what the host sends is the name of the document's file, so that the list counts as that
// of the document still.
LRESULT CVxDaLayerStateComboCtrl::onLastDocumentDestroyed(WPARAM /*unused*/, LPARAM document) {
    if (documentFrom(document) == m_document)
        m_document = nullptr;
    EnableWindow(0);
    return 0;
}

LRESULT CVxDaLayerStateComboCtrl::onDocumentCurrent(WPARAM /*unused*/, LPARAM document) {
    const VxApDocument* current = documentFrom(document);
    EnableWindow(current == m_document && current == currentDocument() ? 1 : 0);
    return 0;
}

LRESULT CVxDaLayerStateComboCtrl::onDocumentToBeActivated(WPARAM /*unused*/, LPARAM document) {
    if (documentFrom(document) == m_document)
        return 0;
    rebuild();
    m_document = documentFrom(document);
    return 0;
}
