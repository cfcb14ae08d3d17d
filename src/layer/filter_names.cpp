#include "core/host_objects.h"
#include "core/text.h"
#include "layer/layer_filter_mgr.h"
#include "layer/layer_texts.h"

#include <hostapi/vxdb18/symbol_utilities.h>
#include <hostapi/window/messages.h>
#include <hostapi/window/module.h>
#include <hostapi/zorq/documents.h>

#include <string_view>

// What a filter may be called.

namespace {

constexpr Zorq::ErrorStatus kBadName = 352;
constexpr Zorq::ErrorStatus kNoDatabase = 124;
constexpr Zorq::ErrorStatus kBadCharacters = 3;
constexpr Zorq::ErrorStatus kTooLong = 160;
constexpr std::wstring_view kPlaceHolder = L"{0}";

/// What differs in the messages between drawings with long names and without.
struct NameLimits {
    const wchar_t* charactersKey;
    const wchar_t* length;
};
constexpr NameLimits kLongNames{L"IDS_NOM_BAD_CHARSET_ESN", L"255"};
constexpr NameLimits kShortNames{L"IDS_NOM_BAD_CHARSET", L"31"};

VxString textOf(const wchar_t* key) {
    return CVxDaLyCtrlMgdResMgr::GetLocalResString(key);
}

VxString filledIn(VxString text, const VxString& insert) {
    const std::size_t place = text.find(kPlaceHolder);
    if (place != VxString::npos)
        text.replace(place, kPlaceHolder.size(), insert);
    return text;
}

void showReason(Zorq::ErrorStatus status, const NameLimits& limits) {
    if (status == kBadCharacters)
        AfxMessageBox(filledIn(textOf(L"FilterErrorInvalidChars"), textOf(limits.charactersKey)),
                      MB_OK);
    else if (status == kTooLong)
        AfxMessageBox(filledIn(textOf(L"FilterErrorMoreThanMaxChars"), limits.length), MB_OK);
}

/// The name by the host's rules for symbols; the user is told what is wrong where the drawing's rule is
/// known.
Zorq::ErrorStatus checkSymbolName(const VxString& name) {
    const VxApDocument* document = currentDocument();
    const VxDbDatabase* database = document == nullptr ? nullptr : document->database();
    const VxDbSymbolUtilities::Services* services = VxDbSymbolUtilities::servicesPtr();
    if (database == nullptr || services == nullptr)
        return kNoDatabase;
    const Zorq::ErrorStatus status = services->validateSymbolName(
        name.c_str(), true, false, services->compatibilityMode(database));
    bool longNames = false;
    if (vxdbGetExtnames(database, longNames) == Zorq::eOk)
        showReason(status, longNames ? kLongNames : kShortNames);
    return status;
}

}  // namespace

Zorq::ErrorStatus CVxDaLayerFilterMgr::validateFilterName(const VxString& name) const {
    const VxString bare = trimmed(name);
    if (bare.empty()) {
        AfxMessageBox(textOf(L"FilterErrorTooFewChars"), MB_OK);
        return kBadName;
    }
    if (findFilter(bare) != nullptr) {
        AfxMessageBox(textOf(L"FilterErrorNonUniqueName"), MB_OK);
        return kBadName;
    }
    return checkSymbolName(bare);
}
