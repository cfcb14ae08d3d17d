#include "workbench/desktop/look/fonts.h"

#include "workbench/desktop/look/text.h"

#include <hostapi/window.h>

#include <algorithm>

namespace workbench::desktop {

namespace {

QFont pixelFont(const QString& family, int height) {
    QFont font(family);
    font.setPixelSize(std::max(1, height));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

QFont fontOf(const LOGFONT* font) {
    if (font == nullptr)
        return pixelFont(QString::fromLatin1(kFontFamily), kTextHeight);
    QFont made = pixelFont(toQt(font->faceName), font->height);
    made.setWeight(static_cast<QFont::Weight>(std::clamp(font->weight, 100, 900)));
    made.setItalic(font->italic);
    return made;
}

QFont fieldFont() {
    return pixelFont(QString::fromLatin1(kFieldFontFamily), kFieldHeight);
}

}  // namespace workbench::desktop
