#pragma once

#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/zorq/profiles.h>

namespace workbench {

/// Keeps the places of the toolkit's bars in the current profile, below its node "PaletteSets".
class BarMemory final : public BarStorage, public VxApProfileManagerReactor {
public:
    /// Both must outlive it.
    BarMemory(Toolkit& toolkit, ProfileStore& profiles);
    BarMemory(const BarMemory&) = delete;
    BarMemory& operator=(const BarMemory&) = delete;
    ~BarMemory() override;

    // BarStorage:
    IXMLDOMNode* openBar(const GUID& tool, bool create) override;
    void complain(const GUID& tool) override;

    // VxApProfileManagerReactor:
    void currentProfileChanged(const wchar_t* name) override;
    void currentProfileWillBeSaved(const wchar_t* name) override;

private:
    Toolkit& m_toolkit;
    ProfileStore& m_profiles;
};

}  // namespace workbench
