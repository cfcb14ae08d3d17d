#pragma once

#include <hostapi/types.h>

/// Loads a library by its file name, or counts it up if it is loaded. Null on failure; the reason
/// is then the thread's last error.
HINSTANCE LoadLibrary(const wchar_t* fileName);
/// Counts a library down; it goes with the last count. Returns 0 on failure.
BOOL FreeLibrary(HINSTANCE library);
/// A loaded library by its file name, not counted; null if it isn't loaded.
HINSTANCE GetModuleHandle(const wchar_t* fileName);
/// An exported function of a library, null if there is none of that name.
void* GetProcAddress(HINSTANCE library, const char* name);

/// The thread's last error.
DWORD GetLastError();
/// Sets the thread's last error.
void SetLastError(DWORD error);

/// The library that `LoadString` looks through first.
HINSTANCE AfxGetResourceHandle();
/// Sets the library that `LoadString` looks through first.
void AfxSetResourceHandle(HINSTANCE library);
/// A string by its number: of the current resource library, or else of the libraries in the search
/// chain, the one that was attached last first. Returns 0, and leaves `text` alone, if none of them has
/// one of that number.
BOOL LoadString(UINT number, VxString& text);
/// An icon of a library by its number at its natural size, owned by the caller; null if it has
/// none.
HICON LoadIcon(HINSTANCE library, UINT number);

/// A library's place in the framework's resource search chain.
struct AFX_EXTENSION_MODULE {
    HINSTANCE library = nullptr;         ///< The library.
    HINSTANCE resourceHandle = nullptr;  ///< The resource handle at the time of attaching.
    bool attached = false;               ///< Written by the framework.
};
/// Attaches a library to the search chain. Returns 0 if the record is attached already.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HINSTANCE library);
/// Takes the record out of the search chain.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record);

/// Shows a message box with the `MB_...` buttons and icon and returns the answer (1 is OK).
int AfxMessageBox(const VxString& text, UINT type);
/// Raises the framework's invalid-argument failure, which ends the running gesture or event.
[[noreturn]] void AfxThrowInvalidArgException();
