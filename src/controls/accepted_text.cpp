#include "controls/accepted_text.h"

#include "controls/edit_text.h"

#include <hostapi/qrui18/balloon.h>
#include <hostapi/window/wnd.h>

void AcceptedText::restore(CWnd& field) const {
    field.SetWindowText(m_text);
}

void AcceptedText::refuse(CWnd& field, const VxString& reason) const {
    giveBackToCorrect(field, m_text);
    QrUiShowBalloonTip(&m_owner, &field, reason, 0);
}

void AcceptedText::forbid(CWnd& field, const VxString& reason) const {
    QrUiShowBalloonTip(&m_owner, &field, reason, 0);
    restore(field);
}
