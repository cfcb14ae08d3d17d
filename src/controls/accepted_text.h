#pragma once

#include <hostapi/types.h>

class CWnd;

/// The last accepted text of the edit field that has or had the focus. What is refused goes back to
/// it, with a balloon that says why.
class AcceptedText {
public:
    /// `owner` is the control that owns the balloons; it has to outlive this.
    explicit AcceptedText(CWnd& owner) : m_owner(owner) {}

    void accept(const VxString& text) { m_text = text; }
    const VxString& text() const { return m_text; }
    bool is(const VxString& text) const { return text == m_text; }
    /// Puts the text back into the field.
    void restore(CWnd& field) const;
    /// Gives the field back to correct the entry, which is wrong.
    void refuse(CWnd& field, const VxString& reason) const;
    /// Puts the text back into the field, which can't be changed now whatever is entered.
    void forbid(CWnd& field, const VxString& reason) const;

private:
    CWnd& m_owner;
    VxString m_text;
};
