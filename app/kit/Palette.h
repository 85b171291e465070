#pragma once

#include <QColor>

// The colours of the presentation kit: ink and paper, the quiet greys of the sidebar and
// borders, and one teal accent, in a light and a dark variant. The theme's style sheet and the
// painted rows both read the current variant, so a switch reaches everything at once.
namespace vl::palette {

struct Colors {
    QColor ink, muted, paper, side, border, field, accent;
    // Rows of a list: the chosen one, the one under the pointer, and the rule between them.
    QColor selected, hover, rule;
    // Text and marks drawn on the accent.
    QColor onAccent, onAccentDisabled;
    QColor accentHover, accentDeep, accentDisabled;
    QColor danger, dangerPaper, dangerBorder;
    // Accent-tinted papers: the avatar, the dismiss button under the pointer, the busy track,
    // the banner's edge, the fresh tag and the sidebar's chosen section.
    QColor tint, tintHover, track, bannerBorder, freshPaper, chosen;
    QColor pressed, disabled, raised, raisedHover;
    // The featured tag.
    QColor gold, goldPaper;
};

const Colors& light();
const Colors& dark();

// The variant in use; the theme switches it before it restyles the application.
const Colors& current();
void useDark(bool dark);
bool isDark();

inline const QColor& ink()
{
    return current().ink;
}
inline const QColor& muted()
{
    return current().muted;
}
inline const QColor& paper()
{
    return current().paper;
}
inline const QColor& accent()
{
    return current().accent;
}
inline const QColor& selected()
{
    return current().selected;
}
inline const QColor& hover()
{
    return current().hover;
}
inline const QColor& rule()
{
    return current().rule;
}

} // namespace vl::palette
