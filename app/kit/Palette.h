#pragma once

#include <QColor>

// The colours of the presentation kit: ink and paper, the quiet greys of the sidebar and
// borders, and one teal accent. The theme and the painted rows take them from here.
namespace vl::palette {

inline const QColor ink{0x1d, 0x23, 0x29};
inline const QColor muted{0x5f, 0x6b, 0x76};
inline const QColor paper{0xff, 0xff, 0xff};
inline const QColor side{0xf3, 0xf5, 0xf7};
inline const QColor border{0xe1, 0xe6, 0xea};
inline const QColor field{0xd3, 0xda, 0xe0};
inline const QColor accent{0x1e, 0x7f, 0x74};
// Rows of a list: the chosen one, the one under the pointer, and the rule between them.
inline const QColor selected{0xe8, 0xf4, 0xf1};
inline const QColor hover{0xf6, 0xf8, 0xf9};
inline const QColor rule{0xee, 0xf1, 0xf3};

} // namespace vl::palette
