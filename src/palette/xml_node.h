#pragma once

#include <hostapi/window/module.h>
#include <hostapi/xmldom.h>

#include <memory>

/// Gives a node back.
struct NodeRelease {
    void operator()(IXMLDOMNode* node) const { node->Release(); }
};

/// A node held until its owner ends.
using NodePtr = std::unique_ptr<IXMLDOMNode, NodeRelease>;

/// The node behind a storage object; null for a null object and for one that is no node.
NodePtr queryNode(IUnknown* storage);

/// Runs work on nodes. Its answer; 0 if a node operation failed, whose code is then the thread's
/// last error.
template <class Work>
BOOL withNodeErrorsCaught(Work work) {
    try {
        return work();
    } catch (const VxComError& error) {
        SetLastError(static_cast<DWORD>(error.code));
        return 0;
    }
}
