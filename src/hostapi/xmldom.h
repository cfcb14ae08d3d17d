#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

/// The interface of XML nodes in which the host keeps profiles.

/// Success of an interface call.
constexpr HRESULT S_OK = 0;
/// The object does not have the interface that was asked for.
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);

/// A counted object with interfaces.
class VXHOST IUnknown {
public:
    /// Gives out an interface, counted up, or null with a failure.
    virtual HRESULT QueryInterface(const GUID& interfaceId, void** object) = 0;
    /// Counts up.
    virtual UINT AddRef() = 0;
    /// Counts down; the object goes with the last count.
    virtual UINT Release() = 0;

protected:
    ~IUnknown() = default;
};

/// A node of an XML tree. Made by the host; used through the helpers of `VxUt`.
class VXHOST IXMLDOMNode : public IUnknown {
protected:
    ~IXMLDOMNode() = default;
};

/// The ID of `IXMLDOMNode`: {2933BF80-7B36-11D2-B20E-00C04F983E60}.
constexpr GUID IID_IXMLDOMNode{
    0x2933BF80, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

/// Raised by a node operation that failed.
struct VXHOST VxComError {
    HRESULT code;  ///< Negative.
};
