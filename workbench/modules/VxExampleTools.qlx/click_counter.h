#pragma once

class CQrUiToolPanelItem;

/// Counts the clicks on a tool and shows the count in the tool's name. A fresh load counts from 0.
class ClickCounter {
public:
    void count(CQrUiToolPanelItem& item);

private:
    int m_clicks = 0;
};
