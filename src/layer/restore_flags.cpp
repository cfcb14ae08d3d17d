#include "layer/restore_flags.h"

#include <hostapi/qrui18/registry_access.h>
#include <hostapi/vxdb18/layer_state_manager.h>
#include <hostapi/vxdb18/rx_object.h>

#include <optional>

namespace {

constexpr const wchar_t* kProfiles = L"\\Profiles";
constexpr const wchar_t* kDialog = L"\\Dialogs\\VxLayerApps:LayerStatesManager";
constexpr const wchar_t* kLayerNotFound = L"LayerNotFound";
constexpr const wchar_t* kAsOverrides = L"RestoreAsOverrides";

/// The key of the dialog's options in the current profile; nothing without profiles.
std::optional<VxString> dialogKey() {
    const VxString profiles = vxrxProductKey() + kProfiles;
    CQrUiRegistryAccess registry;
    if (!registry.Open(HKEY_CURRENT_USER, profiles))
        return {};
    VxString profile;
    registry.GetString(L"", profile);
    return profiles + L"\\" + profile + kDialog;
}

bool isSet(const CQrUiRegistryAccess& options, const wchar_t* name) {
    DWORD value = 1;
    options.GetDWORD(name, value);
    return value != 0;
}

}  // namespace

int readRestoreFlags() {
    CQrUiRegistryAccess options;
    if (const auto key = dialogKey())
        options.Open(HKEY_CURRENT_USER, *key);
    return (isSet(options, kLayerNotFound) ? kRestoreTurnsNewLayersOff : 0) |
           (isSet(options, kAsOverrides) ? kRestoreAsOverrides : 0);
}
