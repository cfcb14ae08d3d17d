#include "workbench/base/input_error.h"
#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/windows/image_list.h"

#include <hostapi/window/image_list.h>

#include <utility>

using workbench::HostCall;
using workbench::ImageList;
using workbench::Workbench;
using workbench::supply::toolkit;
using workbench::supply::windows;

namespace {

ImageList* listOf(const CImageList& object) {
    return windows().gdi().findImageList(object.m_hImageList);
}

}  // namespace

CImageList::~CImageList() {
    if (m_hImageList != nullptr && Workbench::living() != nullptr)
        DeleteImageList();
}

BOOL CImageList::Create(int width, int height, UINT flags, int initial, int grow) {
    HostCall call("CImageList::Create", {width, height, flags, initial, grow});
    if (call.failed() || m_hImageList != nullptr || width <= 0 || height <= 0)
        return call.returns(0);
    m_hImageList = windows().gdi().addImageList({width, height});
    return call.returns(1);
}

BOOL CImageList::Attach(HIMAGELIST list) {
    if (list == nullptr || m_hImageList != nullptr)
        return 0;
    m_hImageList = list;
    return 1;
}

HIMAGELIST CImageList::Detach() {
    return std::exchange(m_hImageList, nullptr);
}

BOOL CImageList::DeleteImageList() {
    HostCall call("CImageList::DeleteImageList");
    if (call.failed())
        return call.returns(0);
    const HIMAGELIST list = std::exchange(m_hImageList, nullptr);
    return call.returns(windows().gdi().removeImageList(list) ? 1 : 0);
}

int CImageList::GetImageCount() const {
    const ImageList* const list = listOf(*this);
    return list == nullptr ? 0 : list->count();
}

BOOL CImageList::SetImageCount(UINT count) {
    HostCall call("CImageList::SetImageCount", {count});
    ImageList* const list = listOf(*this);
    if (call.failed() || list == nullptr)
        return call.returns(0);
    list->resize(static_cast<int>(count));
    return call.returns(1);
}

COLORREF CImageList::SetBkColor(COLORREF colour) {
    HostCall call("CImageList::SetBkColor", {colour});
    ImageList* const list = listOf(*this);
    if (call.failed() || list == nullptr)
        return call.returns(CLR_INVALID);
    const COLORREF before = list->background();
    list->setBackground(colour);
    return call.returns(before);
}

int CImageList::Add(const CBitmap* bitmap, COLORREF mask) {
    HostCall call("CImageList::Add", {bitmap, mask});
    ImageList* const list = listOf(*this);
    if (call.failed() || list == nullptr || bitmap == nullptr)
        return call.returns(-1);
    try {
        const auto& pictures = toolkit().pictures();
        const HBITMAP strip = bitmap->m_hBitmap;
        return call.returns(list->addStrip({pictures.pixels(strip), pictures.source(strip)}, mask));
    } catch (const workbench::InputError&) {
        return call.returns(-1);
    }
}

HICON CImageList::ExtractIcon(int index) const {
    HostCall call("CImageList::ExtractIcon", {index});
    const ImageList* const list = listOf(*this);
    const workbench::SourcedPicture* const picture = list == nullptr ? nullptr : list->at(index);
    if (call.failed() || picture == nullptr)
        return call.returns<HICON>(nullptr);
    return call.returns(windows().gdi().addIcon(*picture));
}

int CImageList::Replace(int index, HICON icon) {
    HostCall call("CImageList::Replace", {index, icon});
    ImageList* const list = listOf(*this);
    const workbench::SourcedPicture* const picture = windows().gdi().findIcon(icon);
    if (call.failed() || list == nullptr || picture == nullptr || !list->replace(index, *picture))
        return call.returns(-1);
    return call.returns(index);
}
