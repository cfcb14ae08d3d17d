#include "workbench/toolkit/row_layout.h"

#include <algorithm>

namespace workbench {

namespace {

using Kind = RowItem::Kind;

int buttonSize(const RowMetrics& metrics) {
    return metrics.iconSize + 2 * kButtonBorder;
}

/// The width that an item needs at least.
int neededWidth(Kind kind, const RowMetrics& metrics) {
    switch (kind) {
    case Kind::Button:
        return buttonSize(metrics);
    case Kind::Flyout:
        return buttonSize(metrics) + kFlyoutArrowWidth;
    case Kind::Control:
        return kMinimumControlWidth;
    case Kind::Separator:
        return kSeparatorWidth;
    case Kind::RowBreak:
        break;
    }
    return 0;
}

/// One row being filled, then placed.
class Row {
public:
    void add(std::size_t index, Kind kind, int needed) {
        m_indexes.push_back(index);
        m_needed += needed;
        if (kind == Kind::Control)
            ++m_controls;
    }
    bool isEmpty() const { return m_indexes.empty(); }
    int needed() const { return m_needed; }
    const std::vector<std::size_t>& indexes() const { return m_indexes; }
    int controls() const { return m_controls; }

private:
    std::vector<std::size_t> m_indexes;
    int m_needed = 0;
    int m_controls = 0;
};

class Placing {
public:
    Placing(const std::vector<RowItem>& items, int width, const RowMetrics& metrics,
            const std::function<int(std::size_t, int)>& heightOf)
        : m_items(items),
          m_width(std::max(0, width - metrics.indent)),
          m_metrics(metrics),
          m_heightOf(heightOf) {
        m_layout.items.resize(items.size());
    }

    RowLayout run() {
        for (std::size_t index = 0; index < m_items.size(); ++index)
            add(index);
        place();
        return std::move(m_layout);
    }

private:
    void add(std::size_t index) {
        const RowItem& item = m_items[index];
        if (item.hidden)
            return;
        if (item.kind == Kind::RowBreak) {
            place();
            return;
        }
        const int needed = neededWidth(item.kind, m_metrics);
        if (!m_row.isEmpty() && (item.alone || m_row.needed() + needed > m_width))
            place();
        m_row.add(index, item.kind, needed);
        if (item.alone)
            place();
    }

    /// Gives the items of the row their rectangles and begins a new row.
    void place() {
        if (m_row.isEmpty())
            return;
        const int top = m_layout.height == 0 ? 0 : m_layout.height + kRowGap;
        const int height = placeAcross(top);
        for (const std::size_t index : m_row.indexes())
            centre(m_layout.items[index], top, height);
        m_layout.height = top + height;
        m_row = {};
    }

    /// Places from left to right and returns the height of the highest item.
    int placeAcross(int top) {
        int spare = std::max(0, m_width - m_row.needed());
        int controls = m_row.controls();
        int x = m_metrics.indent;
        int highest = 0;
        for (const std::size_t index : m_row.indexes()) {
            const Kind kind = m_items[index].kind;
            int width = neededWidth(kind, m_metrics);
            int height = buttonSize(m_metrics);
            if (kind == Kind::Control) {
                const int share = spare / controls--;
                spare -= share;
                width += share;
                height = m_heightOf(index, width);
            }
            m_layout.items[index] = {x, top, x + width, top + height};
            highest = std::max(highest, height);
            x += width;
        }
        return highest;
    }

    static void centre(CRect& rect, int top, int rowHeight) {
        const int height = rect.Height();
        rect.top = top + (rowHeight - height) / 2;
        rect.bottom = rect.top + height;
    }

    const std::vector<RowItem>& m_items;
    const int m_width;
    const RowMetrics& m_metrics;
    const std::function<int(std::size_t, int)>& m_heightOf;
    Row m_row;
    RowLayout m_layout;
};

}  // namespace

RowLayout layoutRows(const std::vector<RowItem>& items, int width, const RowMetrics& metrics,
                     const std::function<int(std::size_t, int)>& heightOf) {
    return Placing(items, width, metrics, heightOf).run();
}

}  // namespace workbench
