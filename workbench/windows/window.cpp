#include "workbench/windows/window.h"

namespace workbench {

bool Widget::handle(Window&, UINT, WPARAM, LPARAM, LRESULT&) {
    return false;
}

bool Widget::holdsTyping(const Window&) const {
    return false;
}

std::string Widget::describe(const Window&) const {
    return {};
}

}  // namespace workbench
