#include "app/kit/Palette.h"

namespace vl::palette {

namespace {

bool darkInUse = false;

} // namespace

const Colors& light()
{
    static const Colors colors{
        .ink = QColor(0x1d2329),
        .muted = QColor(0x5f6b76),
        .paper = QColor(0xffffff),
        .side = QColor(0xf3f5f7),
        .border = QColor(0xe1e6ea),
        .field = QColor(0xd3dae0),
        .accent = QColor(0x1e7f74),
        .selected = QColor(0xe8f4f1),
        .hover = QColor(0xf6f8f9),
        .rule = QColor(0xeef1f3),
        .onAccent = QColor(0xffffff),
        .onAccentDisabled = QColor(0xf2f9f8),
        .accentHover = QColor(0x196d63),
        .accentDeep = QColor(0x145a52),
        .accentDisabled = QColor(0x92c3bd),
        .danger = QColor(0xa8261b),
        .dangerPaper = QColor(0xfdf1f0),
        .dangerBorder = QColor(0xf6cdc9),
        .tint = QColor(0xd6ece8),
        .tintHover = QColor(0xd3eae5),
        .track = QColor(0xe3efed),
        .bannerBorder = QColor(0xc5e2dc),
        .freshPaper = QColor(0xdff2ee),
        .chosen = QColor(0xddeeea),
        .pressed = QColor(0xe7ebef),
        .disabled = QColor(0x9aa3ac),
        .raised = QColor(0xfbfcfc),
        .raisedHover = QColor(0xf3faf8),
        .gold = QColor(0x9a6b0c),
        .goldPaper = QColor(0xfbf1dc),
    };
    return colors;
}

// The dark variant keeps the light one's relations: the same steps between paper, sidebar and
// rules, and a teal lifted enough to read as text on the dark paper, carrying dark ink itself.
const Colors& dark()
{
    static const Colors colors{
        .ink = QColor(0xe3e7eb),
        .muted = QColor(0x9ba6b1),
        .paper = QColor(0x1a1e22),
        .side = QColor(0x22272c),
        .border = QColor(0x30373e),
        .field = QColor(0x3d464f),
        .accent = QColor(0x3cae9f),
        .selected = QColor(0x1e3532),
        .hover = QColor(0x232a30),
        .rule = QColor(0x272d33),
        .onAccent = QColor(0x0d1b19),
        .onAccentDisabled = QColor(0x8fb0ab),
        .accentHover = QColor(0x4bbcad),
        .accentDeep = QColor(0x7dd3c7),
        .accentDisabled = QColor(0x2d524c),
        .danger = QColor(0xf28b80),
        .dangerPaper = QColor(0x3b2422),
        .dangerBorder = QColor(0x5e332e),
        .tint = QColor(0x1f3d39),
        .tintHover = QColor(0x25463f),
        .track = QColor(0x24332f),
        .bannerBorder = QColor(0x2b4a45),
        .freshPaper = QColor(0x1f3b37),
        .chosen = QColor(0x1f3a36),
        .pressed = QColor(0x2b3239),
        .disabled = QColor(0x66707a),
        .raised = QColor(0x1e2327),
        .raisedHover = QColor(0x1f302d),
        .gold = QColor(0xe2b45a),
        .goldPaper = QColor(0x3a3122),
    };
    return colors;
}

const Colors& current()
{
    return darkInUse ? dark() : light();
}

void useDark(bool dark)
{
    darkInUse = dark;
}

bool isDark()
{
    return darkInUse;
}

} // namespace vl::palette
