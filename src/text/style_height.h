#pragma once

/// The height that the current text style gives all its texts, in drawing units; 0 if each text has its
/// own. -1 if that can't be told, as for a style whose name is spelt in another case than the variable
/// has it.
double GetStyleHeight();
