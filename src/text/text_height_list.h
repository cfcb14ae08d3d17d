#pragma once

#include <hostapi/types.h>

#include <memory>
#include <optional>
#include <vector>

class VxApDocument;

/// The text heights that a document has used since it was opened.
struct TextHeightList {
    std::vector<double> values;   ///< drawing units, in order of first appearance
    double currentHeight = -1.0;  ///< the height to show
    bool variableHeight = true;   ///< the text style leaves the height to the variable
};

/// The list of the current document; null for none. A caller that keeps it over a call to the host may
/// be left with one that nobody else has any more.
std::shared_ptr<TextHeightList> currentTextHeights();
/// Makes a document the current one; its list is made if it has none. Whether another list is the
/// current one now.
bool selectTextHeights(const VxApDocument* document);
/// Ends a document's list. Whether it was the current one, so that there is none now.
bool dropTextHeights(const VxApDocument* document);
/// Ends all lists.
void dropAllTextHeights();

/// A height as the drawing's units show it; nothing if it can't be written.
std::optional<VxString> formatHeight(double height);
/// Shows a height from now on, and adds it to the current document's list if none of its heights looks
/// the same. False without a list.
bool AddHeight(double height);
/// The same for the height of new texts, rounded to what the drawing's units show. Nothing if that
/// can't be read.
void AddTextSize();
/// Brings height and mode in line with the current text style; nothing if that can't be told.
void FollowStyle();
