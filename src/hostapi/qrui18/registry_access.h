#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

/// Handle of a key of the registry.
using HKEY = struct HKEY__*;
/// The root of what belongs to the user.
inline HKEY const HKEY_CURRENT_USER = reinterpret_cast<HKEY>(std::uintptr_t{0x80000001});

/// Reads values of one key of the registry. Paths and names are taken without regard to case.
class VXHOST CQrUiRegistryAccess {
public:
    CQrUiRegistryAccess() = default;
    CQrUiRegistryAccess(const CQrUiRegistryAccess&) = delete;
    CQrUiRegistryAccess& operator=(const CQrUiRegistryAccess&) = delete;
    ~CQrUiRegistryAccess();

    /// Opens a key below a root for reading; an earlier key is closed. False if there is none.
    bool Open(HKEY root, const VxString& path);
    /// Reads a text; the empty name is the key's default value. False, with `value` left alone, if there
    /// is none or it is no text.
    bool GetString(const wchar_t* name, VxString& value) const;
    /// Reads a number. False, with `value` left alone, if there is none or it is no number.
    bool GetDWORD(const wchar_t* name, DWORD& value) const;
    /// Closes the key; without one nothing happens.
    void Close();

private:
    HKEY m_key = nullptr;
};
