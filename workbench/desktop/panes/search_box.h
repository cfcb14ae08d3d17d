#pragma once

#include "workbench/desktop/panes/panel_search.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <functional>
#include <vector>

namespace workbench::desktop {

/// A field that finds tools and controls on the panels while the user types, in a list below it.
class SearchBox final : public QLineEdit {
public:
    /// The toolkit must outlive the box.
    explicit SearchBox(const Toolkit& toolkit);

    /// Told the hit that was chosen, by Enter or a click; Enter beside the list takes the best.
    void setOnChosen(std::function<void(const SearchHit&)> chosen) {
        m_onChosen = std::move(chosen);
    }
    /// Told that the search was given up with Escape: the focus is to go elsewhere.
    void setOnLeft(std::function<void()> left) { m_onLeft = std::move(left); }
    /// What is on the list, the best first.
    const std::vector<SearchHit>& hits() const { return m_hits; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool handleKey(int key);
    void search(const QString& text);
    void openList();
    void choose(int row);
    void leave();

    const Toolkit& m_toolkit;
    std::vector<SearchHit> m_hits;  // a row of the list each
    QStringListModel m_rows;
    QCompleter m_list{this};
    std::function<void(const SearchHit&)> m_onChosen;
    std::function<void()> m_onLeft;
};

}  // namespace workbench::desktop
