#pragma once

class CQrUiToolPanelItem;

/// Counts the clicks on a tool and shows the count in the tool's name. A fresh load counts from 0, and
/// so do panels that are built anew.
class ClickCounter {
public:
    void count(CQrUiToolPanelItem& item);
    void reset() { m_clicks = 0; }

private:
    int m_clicks = 0;
};
