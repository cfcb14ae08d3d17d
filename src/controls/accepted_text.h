#pragma once

#include <hostapi/types.h>

class CWnd;

/// The last accepted text of the edit field that has or had the focus, to which an entry that is
/// refused goes back.
class AcceptedText {
public:
    void accept(const VxString& text) { m_text = text; }
    bool is(const VxString& text) const { return text == m_text; }
    /// Puts the text back into the field.
    void restore(CWnd& field) const;
    /// Gives the user the field back with the text, to correct it.
    void giveBack(CWnd& field) const;

private:
    VxString m_text;
};
