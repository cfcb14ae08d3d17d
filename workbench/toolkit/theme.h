#pragma once

#include <hostapi/qrui18/theme.h>

#include <map>
#include <string>
#include <vector>

namespace workbench {

/// A theme of the toolkit.
class Theme final : public CQrUiTheme {
public:
    /// Index of the pointer to the font of controls, a `CFont` that whoever set it owns.
    static constexpr int kControlFontPointer = 2;

    Theme() = default;
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    /// Gives an element a font, without telling the reactors.
    void setFont(int element, LOGFONT font);
    /// Tells the reactors that an element changed, unless changes are suspended.
    void changeElement(int element);
    /// A stored number; 0 if there is none.
    int data(int index) const;
    /// A stored pointer; null if there is none.
    void* dataPtr(int index) const;
    /// The number of registered reactors.
    std::size_t reactorCount() const { return m_reactors.size(); }

    // CQrUiTheme:
    void RegisterReactor(CQrUiThemeModifiedReactor* reactor) override;
    void UnregisterReactor(CQrUiThemeModifiedReactor* reactor) override;
    BOOL GetFont(int element, LOGFONT& font) const override;
    void SetData(int index, int value) override;
    void SetDataPtr(int index, void* pointer) override;
    void ResumeModifiedNotifications() override;

private:
    std::map<int, LOGFONT> m_fonts;
    std::map<int, int> m_data;
    std::map<int, void*> m_pointers;                     // not owned
    std::vector<CQrUiThemeModifiedReactor*> m_reactors;  // not owned, each once
};

}  // namespace workbench
