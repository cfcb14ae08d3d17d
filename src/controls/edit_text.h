#pragma once

#include <hostapi/types.h>

class CWnd;

/// Selects the whole text of an edit field.
void SelectAllEditText(CWnd& edit);
/// Gives the user an edit field back with a text to correct, all of it selected.
void giveBackToCorrect(CWnd& edit, const VxString& text);
