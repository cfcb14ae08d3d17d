#include "workbench/desktop/app/space_tabs.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <algorithm>

namespace workbench::desktop {

namespace {

struct Spaces {
    QStringList names;
    int shown = 0;
};

/// Model space and the layouts from left to right.
Spaces spacesOf(const drawing::Database& database) {
    std::vector<drawing::ObjectId> layouts = database.ids(drawing::RecordKind::Layout);
    const auto orderOf = [&database](drawing::ObjectId id) {
        return database.look<drawing::Layout>(id)->tabOrder;
    };
    std::stable_sort(layouts.begin(), layouts.end(),
                     [&orderOf](auto left, auto right) { return orderOf(left) < orderOf(right); });
    Spaces spaces;
    spaces.names.append(QStringLiteral("Model"));
    for (const drawing::ObjectId id : layouts) {
        if (id == drawing::activeLayout(database))
            spaces.shown = static_cast<int>(spaces.names.size());
        spaces.names.append(toQt(std::string_view(database.look<drawing::Layout>(id)->name)));
    }
    return spaces;
}

}  // namespace

SpaceTabs::SpaceTabs(Stage& stage) : m_stage(stage) {
    setShape(QTabBar::RoundedSouth);
    setDrawBase(false);
    setExpanding(false);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(QStringLiteral("Model and layouts"));
    connect(this, &QTabBar::currentChanged, [this](int index) { choose(index); });
}

void SpaceTabs::refresh() {
    const Document* const document = m_stage.workbench.editor().documents().active();
    setVisible(document != nullptr);
    if (document == nullptr)
        return;
    const Spaces spaces = spacesOf(document->data());
    m_refreshing = true;
    while (count() > spaces.names.size())
        removeTab(count() - 1);
    for (int index = 0; index < spaces.names.size(); ++index) {
        if (index == count())
            addTab(spaces.names[index]);
        else if (tabText(index) != spaces.names[index])
            setTabText(index, spaces.names[index]);
    }
    setCurrentIndex(spaces.shown);
    m_refreshing = false;
}

void SpaceTabs::choose(int index) {
    if (m_refreshing || index < 0)
        return;
    m_stage.pump.act([this, index] {
        m_stage.workbench.editor().type(index == 0
                                            ? std::wstring(L"_model\n")
                                            : L"_-layout\nset\n" + toHost(tabText(index)) + L'\n');
    });
}

}  // namespace workbench::desktop
