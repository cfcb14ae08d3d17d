#include "workbench/desktop/look/look.h"

namespace workbench::desktop {

const Look& lookOf(Shade shade) {
    static const Look light{
        .frame = QColor(0xd4d8dd),
        .panel = QColor(0xf3f5f7),
        .title = QColor(0xe2e6eb),
        .text = QColor(0x1d2630),
        .dimText = QColor(0x8a929b),
        .line = QColor(0xb4bcc5),
        .edge = QColor(0xb4bcc5),
        .thumb = QColor(0xffffff),
        .field = QColor(0xffffff),
        .fieldText = QColor(0x101820),
        .accent = QColor(0x1a6fc4),
        .accentText = QColor(0xffffff),
        .hover = QColor(0xd9e8f7),
        .link = QColor(0x1457a0),
        .balloon = QColor(0xfff8d6),
        .balloonText = QColor(0x33290a),
        .drawing = QColor(0xfafbfc),
        .drawingLines = QColor(0x5b6670),
    };
    static const Look dark{
        .frame = QColor(0x1c2026),
        .panel = QColor(0x2a3038),
        .title = QColor(0x353d47),
        .text = QColor(0xe4e9ee),
        .dimText = QColor(0x7d8791),
        .line = QColor(0x4a545f),
        .edge = QColor(0x6d7884),
        .thumb = QColor(0xb4bec8),
        .field = QColor(0x1f242a),
        .fieldText = QColor(0xf0f3f6),
        .accent = QColor(0x4f9fe8),
        .accentText = QColor(0x0b1620),
        .hover = QColor(0x3d4b5a),
        .link = QColor(0x8fc4f5),
        .balloon = QColor(0x4b4426),
        .balloonText = QColor(0xfff3c4),
        .drawing = QColor(0x22272d),
        .drawingLines = QColor(0xaab4be),
    };
    return shade == Shade::Dark ? dark : light;
}

}  // namespace workbench::desktop
