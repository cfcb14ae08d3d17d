#pragma once

#include "workbench/desktop/panes/panel_search.h"

#include <QLineEdit>
#include <QStringListModel>

#include <functional>

namespace workbench::desktop {

/// A field that finds tools and controls on the panels while the user types.
class SearchBox final : public QLineEdit {
public:
    explicit SearchBox(Workbench& workbench);

    /// A hit was chosen; and the search was given up.
    void setOnChosen(std::function<void(const SearchHit&)> chosen) {
        m_onChosen = std::move(chosen);
    }
    void setOnLeft(std::function<void()> left) { m_onLeft = std::move(left); }
    const std::vector<SearchHit>& hits() const { return m_hits; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void search(const QString& text);
    void choose(const QString& label);

    Workbench& m_workbench;
    QStringListModel m_labels;
    std::vector<SearchHit> m_hits;
    std::function<void(const SearchHit&)> m_onChosen;
    std::function<void()> m_onLeft;
};

}  // namespace workbench::desktop
