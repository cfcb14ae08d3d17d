#include "light/lighting_tools.h"

#include "controls/cmd_util.h"
#include "controls/doc_lock.h"
#include "controls/variable_access.h"
#include "controls/view_state.h"
#include "core/host_objects.h"
#include "core/roof.h"
#include "core/text.h"
#include "light/sky_state.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/variables.h>

#include <memory>

namespace {

using Callback = QuiescentAction;

constexpr int kLightingCommandFlag = 0;

/// Numbers of "_skystatus".
constexpr int kSkyOff = 0;
constexpr int kSkyBackground = 1;
constexpr int kSkyIllumination = 2;

void sendNumber(const wchar_t* format, int number) {
    runHostCommand(formatText(format, number), kLightingCommandFlag);
}

struct ReleaseBuffer {
    void operator()(VxResultBuffer* buffer) const { vxutRelRb(buffer); }
};
/// A buffer of the host's, which goes back to it also when a command throws.
using HostBuffer = std::unique_ptr<VxResultBuffer, ReleaseBuffer>;

/// Turns a variable of 0 and 1 over by its command.
class FlipCallback : public Callback {
public:
    void run() override {
        const VxAxDocLock lock(workingDatabase(), kLockForWrite);
        const HostBuffer buffer(vxutNewRb(kRtShort));
        if (buffer == nullptr)
            return;
        vxedGetVar(variable(), buffer.get());
        sendNumber(command(), 1 - buffer->value.shortInt);
    }

private:
    virtual const wchar_t* variable() const = 0;
    virtual const wchar_t* command() const = 0;
};

class DefaultLightingCB final : public FlipCallback {
    const wchar_t* variable() const override { return L"DEFAULTLIGHTING"; }
    const wchar_t* command() const override { return L"_defaultlighting\n%d\n"; }
};

class LightGlyphCB final : public FlipCallback {
    const wchar_t* variable() const override { return L"LIGHTGLYPHDISPLAY"; }
    const wchar_t* command() const override { return L"_lightglyphdisplay\n%d\n"; }
};

class SunStatusCB final : public Callback {
public:
    void run() override {
        const VxAxDocLock lock(workingDatabase(), kLockForWrite);
        // A failed read counts like a sun that is on.
        sendNumber(L"_sunstatus\n%d\n", readVariableStrict(L"SUNSTATUS") == 0 ? 1 : 0);
    }
};

class SkylightCB final : public Callback {
public:
    SkylightCB(int requestedStatus, bool illumination)
        : m_requestedStatus(requestedStatus),
          m_illumination(illumination) {}

    void run() override {
        sendStatus();
        activateMainWindow();
    }

private:
    void sendStatus() const {
        const VxAxDocLock lock(workingDatabase(), kLockForWrite);
        if (!IsPerspectiveView() && m_requestedStatus == kSkyStatusOn) {
            writeVariableShort(L"PERSPECTIVE", 1);
        }
        sendNumber(L"_skystatus\n%d\n", commandNumber());
    }

    int commandNumber() const {
        if (m_requestedStatus == kSkyStatusOff)
            return kSkyOff;
        return m_illumination ? kSkyIllumination : kSkyBackground;
    }

    int m_requestedStatus;  // 0 off, 11 on
    bool m_illumination;    // the sky gives light
};

template <class Action>
std::unique_ptr<Callback> make() {
    return std::make_unique<Action>();
}

struct ToggleRow {
    const wchar_t* itemId;
    const wchar_t* bareCommand;
    std::unique_ptr<Callback> (*makeCallback)();
};
constexpr ToggleRow kToggles[] = {
    {L"ID_DefaultLighting", L"_defaultlighting", make<DefaultLightingCB>},
    {L"ID_SunStatus", L"_sunstatus", make<SunStatusCB>},
    {L"ID_Light", L"_lightglyphdisplay", make<LightGlyphCB>},
};

const ToggleRow* findToggle(const VxString& itemId) {
    for (const ToggleRow& row : kToggles) {
        if (equalNoCase(row.itemId, itemId))
            return &row;
    }
    return nullptr;
}

int toggleLight(const ToggleRow& toggle) {
    if (!isPaperSpaceActive() && !isBlockEditorActive())
        runWhenQuiescent(toggle.makeCallback());
    else
        sendHostCommand(toggle.bareCommand);
    return 1;
}

bool isSkylightTool(const VxString& id) {
    return equalNoCase(id, kSkyOffTool) || equalNoCase(id, kSkyBackgroundTool) ||
           equalNoCase(id, kSkyIlluminationTool);
}

int setSkylight(const VxString& id) {
    const bool oldIllumination = readSkyIllumination();
    const std::optional<int> currentStatus = readSkyStatus();
    if (!currentStatus)
        return 0;
    const bool off = equalNoCase(id, kSkyOffTool);
    const int requestedStatus = off ? kSkyStatusOff : kSkyStatusOn;
    const bool illumination = off ? oldIllumination : equalNoCase(id, kSkyIlluminationTool);
    if (requestedStatus == *currentStatus && illumination == oldIllumination)
        return 0;
    runWhenQuiescent(std::make_unique<SkylightCB>(requestedStatus, illumination));
    return 1;
}

}  // namespace

std::optional<int> clickLightingTool(const VxString& id) {
    if (const ToggleRow* toggle = findToggle(id))
        return toggleLight(*toggle);
    if (isSkylightTool(id))
        return setSkylight(id);
    return {};
}
