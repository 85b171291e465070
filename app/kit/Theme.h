#pragma once

class QApplication;
class QWidget;

namespace vl {

class ColorSchemeSource;

// The client's one look: a light and a dark palette with a calm teal accent, one type scale and the
// style sheet every screen shares. A widget takes part through a role, so no screen carries colours
// of its own.
class Theme {
public:
    // Sets the style, the font (with Georgian glyphs), the palette and the shared style sheet.
    static void apply(QApplication& app, bool dark = false);
    // Switches between the light and the dark palette; every widget and painted row follows.
    static void setDark(QApplication& app, bool dark);
    // Keeps the application in the scheme the desktop asks for, as it changes.
    static void follow(QApplication& app, ColorSchemeSource& source);
    // Gives a widget one of the sheet's roles: "sidebar", "account", "brand", "display", "title",
    // "subtitle", "caption", "name", "key", "avatar", "error", "banner", "card", "primary", "link",
    // "quiet", "dismiss", "sections", "busy", "chip", "ticket", "nudge", "tag", "stamp", "section",
    // "ledger", "pane", "plain", "rail", "star".
    static void setRole(QWidget* widget, const char* role);
};

} // namespace vl
