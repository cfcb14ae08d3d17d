#pragma once

#include "workbench/drawing/database/reactor_list.h"

#include <hostapi/zorq/documents.h>

namespace workbench {

/// The source of one document's input events. Its reactors are not owned.
class InputManager final : public VxEdInputManager {
public:
    // VxEdInputManager:
    void addReactor(VxEdInputContextReactor* reactor) override;
    void removeReactor(VxEdInputContextReactor* reactor) override;

    void beginInput();
    void endInput();
    void beginQuiescentState();
    void endQuiescentState();

private:
    drawing::ReactorList<VxEdInputContextReactor> m_reactors;
};

}  // namespace workbench
