#pragma once

#include "workbench/core/answers.h"
#include "workbench/windows/menu_table.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The line of a menu under a path of labels such as "Panels/Layers"; null for none. A label may
/// hold a "/" itself.
const MenuLine* findMenuLine(const std::vector<MenuLine>& lines, std::wstring_view path);

/// Popup menus on show. The choice comes from a gesture, or from the queue of the kind "menu" (a
/// path of labels), or from whoever shows menus, or there is none.
class PopupMenus {
public:
    /// Shows the lines to a user and returns the chosen command; nothing for none.
    using Chooser = std::function<std::optional<UINT>(const std::vector<MenuLine>&)>;

    explicit PopupMenus(Answers& answers) : m_answers(answers) {}

    /// Has the user choose a line. Nothing if he closes the menu, or if the line or a popup that it
    /// stands in is disabled.
    std::optional<UINT> track(const std::vector<MenuLine>& lines);

    /// Answers the next menu, before all others.
    void answerNext(Chooser chooser) { m_next = std::move(chooser); }
    /// Whether an answer of `answerNext` still waits for its menu.
    bool isAnswerWaiting() const { return m_next != nullptr; }
    /// Shows menus to a user. Null leaves them to the queue.
    void setPresenter(Chooser presenter) { m_presenter = std::move(presenter); }

private:
    std::optional<UINT> ask(const std::vector<MenuLine>& lines);

    Answers& m_answers;
    Chooser m_next;
    Chooser m_presenter;
};

}  // namespace workbench
