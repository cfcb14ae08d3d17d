#pragma once

#include <hostapi/types.h>
#include <hostapi/xmldom.h>

namespace workbench {

/// Where the places of bars are kept from one run to the next; the host fills it in.
class BarStorage {
public:
    virtual ~BarStorage() = default;
    /// The node that the bar of a tool is kept in, counted for the caller. A missing one is made if
    /// `create`; null for none.
    virtual IXMLDOMNode* openBar(const GUID& tool, bool create) = 0;
    /// What is kept for the bar of a tool is no place where it may stand.
    virtual void complain(const GUID& tool) = 0;
};

}  // namespace workbench
