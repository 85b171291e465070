#include "app/kit/Theme.h"

#include "app/kit/Palette.h"
#include "app/platform/ColorSchemeSource.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QWidget>

namespace vl {

namespace {

using palette::Colors;

const char* const styleSheet = R"(
QWidget { color: @ink@; }
QMainWindow, QDialog { background: @paper@; }
QToolButton:focus { border: 1px solid @accent@; border-radius: 6px; }
QWidget[vlRole="sidebar"] { background: @side@; border-right: 1px solid @border@; }
QWidget[vlRole="account"] { border-top: 1px solid @border@; }
QWidget[vlRole="card"] { background: @paper@; border: 1px solid @border@; border-radius: 14px; }
QWidget[vlRole="banner"] { background: @selected@; border-bottom: 1px solid @bannerBorder@; }
QLabel[vlRole="brand"] { color: @accent@; font-size: 15pt; font-weight: 700; }
QLabel[vlRole="display"] { color: @ink@; font-size: 30pt; font-weight: 700; }
QLabel[vlRole="title"] { color: @ink@; font-size: 16pt; font-weight: 600; }
QLabel[vlRole="subtitle"] { color: @muted@; font-size: 10pt; }
QLabel[vlRole="caption"] { color: @muted@; font-size: 9pt; }
QLabel[vlRole="name"] { color: @ink@; font-weight: 600; }
QLabel[vlRole="key"] {
    color: @ink@; font-family: "DejaVu Sans Mono", "Noto Sans Mono", monospace;
    font-size: 11pt; font-weight: 600;
}
QLabel[vlRole="avatar"] {
    background: @tint@; color: @accent@; border-radius: 17px; font-weight: 700;
    min-width: 34px; max-width: 34px; min-height: 34px; max-height: 34px;
}
QLabel[vlRole="error"] {
    color: @danger@; background: @dangerPaper@; border: 1px solid @dangerBorder@; border-radius: 8px;
    padding: 8px 10px;
}
QLineEdit {
    border: 1px solid @field@; border-radius: 8px; padding: 8px 10px; background: @paper@;
    selection-background-color: @accent@; selection-color: @onAccent@;
}
QLineEdit:focus { border: 1px solid @accent@; }
QComboBox {
    border: 1px solid @field@; border-radius: 8px; padding: 6px 10px; background: @paper@;
    min-height: 20px;
}
QComboBox:focus { border-color: @accent@; }
QComboBox QAbstractItemView {
    background: @paper@; border: 1px solid @field@; selection-background-color: @selected@;
    selection-color: @ink@;
}
QLineEdit:read-only { background: @side@; color: @muted@; }
QLineEdit[vlRole="error"], QPlainTextEdit[vlRole="error"], QComboBox[vlRole="error"],
QDateEdit[vlRole="error"] {
    border: 1px solid @dangerBorder@; border-radius: 8px; background: @dangerPaper@;
}
QPushButton {
    border: 1px solid @field@; border-radius: 8px; padding: 7px 16px; background: @paper@;
}
QPushButton:hover { background: @side@; }
QPushButton:pressed { background: @pressed@; }
QPushButton:disabled { color: @disabled@; }
QPushButton[vlRole="primary"] {
    background: @accent@; border-color: @accent@; color: @onAccent@; font-weight: 600;
}
QPushButton[vlRole="primary"]:hover { background: @accentHover@; border-color: @accentHover@; }
QPushButton[vlRole="primary"]:pressed { background: @accentDeep@; border-color: @accentDeep@; }
QPushButton[vlRole="primary"]:disabled {
    background: @accentDisabled@; border-color: @accentDisabled@; color: @onAccentDisabled@;
}
QPushButton[vlRole="link"] {
    border: none; background: transparent; color: @accent@; padding: 2px 0; text-align: left;
}
QPushButton[vlRole="link"]:hover { color: @accentDeep@; text-decoration: underline; }
QPushButton[vlRole="link"]:disabled { color: @disabled@; }
QPushButton[vlRole="quiet"] {
    border: none; background: transparent; color: @muted@; padding: 6px 10px;
}
QPushButton[vlRole="quiet"]:hover { background: @pressed@; color: @ink@; }
QPushButton[vlRole="star"] {
    border: none; background: transparent; color: @accent@; font-size: 20pt; padding: 0px 4px;
}
QPushButton[vlRole="star"]:hover { color: @accentDeep@; }
QToolButton[vlRole="dismiss"] {
    border: none; border-radius: 6px; padding: 4px 8px; color: @accent@; background: transparent;
}
QToolButton[vlRole="dismiss"]:hover { background: @tintHover@; }
QListWidget[vlRole="sections"] { background: transparent; border: none; outline: none; }
QListWidget[vlRole="sections"]::item { padding: 0px; border: none; }
QToolButton[vlRole="chip"] {
    border: 1px solid @field@; border-radius: 13px; padding: 4px 12px; background: @paper@;
}
QToolButton[vlRole="chip"]:hover { background: @side@; }
QToolButton[vlRole="chip"]:focus, QPushButton:focus, QPushButton[vlRole="ticket"]:focus {
    border-color: @accent@;
}
QPushButton[vlRole="primary"]:focus { border-color: @accentDeep@; }
QPushButton[vlRole="link"]:focus, QPushButton[vlRole="quiet"]:focus { text-decoration: underline; }
QToolButton[vlRole="chip"]:checked:focus { border-color: @accentDeep@; }
QToolButton[vlRole="chip"]:checked {
    background: @accent@; border-color: @accent@; color: @onAccent@; font-weight: 600;
}
QPushButton[vlRole="ticket"] {
    border: 1px solid @border@; border-radius: 10px; padding: 8px 12px; background: @raised@;
    text-align: left;
}
QPushButton[vlRole="ticket"]:hover { border-color: @accent@; background: @raisedHover@; }
QLabel[vlRole="nudge"] {
    background: @selected@; color: @accentDeep@; border-radius: 8px; padding: 8px 12px;
}
QLabel[vlRole="tag"] {
    background: @selected@; color: @accent@; border-radius: 9px; padding: 2px 9px; font-weight: 600;
}
QLabel[vlRole="stamp"] {
    color: @danger@; border: 2px solid @danger@; border-radius: 6px; padding: 2px 8px;
    font-weight: 800;
}
QLabel[vlRole="section"] {
    color: @muted@; font-size: 8pt; font-weight: 700; letter-spacing: 1px;
}
QListView[vlRole="ledger"], QListWidget[vlRole="ledger"] {
    border: none; background: @paper@; outline: none;
}
QWidget[vlRole="pane"] { background: @raised@; border-left: 1px solid @border@; }
QScrollArea[vlRole="plain"], QScrollArea[vlRole="rail"] {
    border: none; background: transparent;
}
QScrollArea[vlRole="rail"] > QWidget > QWidget { background: transparent; }
QScrollArea[vlRole="rail"] QScrollBar:horizontal {
    height: 4px; background: transparent; margin: 0px; border: none;
}
QScrollArea[vlRole="rail"] QScrollBar::handle:horizontal {
    background: @field@; border-radius: 2px; min-width: 30px;
}
QScrollArea[vlRole="rail"] QScrollBar::add-line:horizontal,
QScrollArea[vlRole="rail"] QScrollBar::sub-line:horizontal { width: 0px; border: none; }
QScrollArea[vlRole="rail"] QScrollBar::add-page:horizontal,
QScrollArea[vlRole="rail"] QScrollBar::sub-page:horizontal { background: transparent; }
QProgressBar[vlRole="busy"] {
    border: none; background: @track@; border-radius: 2px;
    min-height: 4px; max-height: 4px;
}
QProgressBar[vlRole="busy"]::chunk { background: @accent@; border-radius: 2px; }
QMessageBox QLabel#qt_msgbox_label {
    min-width: 300px; font-size: 11pt; font-weight: 600; padding: 6px 2px 10px 2px;
}
QMessageBox QPushButton { min-width: 88px; }
QMenuBar { background: @paper@; border-bottom: 1px solid @border@; padding: 2px 4px; }
QMenuBar::item { padding: 4px 10px; border-radius: 6px; background: transparent; }
QMenuBar::item:selected { background: @selected@; }
QMenu { background: @paper@; border: 1px solid @field@; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 24px; border-radius: 6px; }
QMenu::item:selected { background: @selected@; color: @ink@; }
QMenu::separator { height: 1px; background: @border@; margin: 4px 8px; }
)";

// The sheet names its colours; the current palette fills them in.
QString filledSheet(const Colors& c)
{
    const std::pair<const char*, const QColor*> names[] = {
        {"ink", &c.ink},
        {"muted", &c.muted},
        {"paper", &c.paper},
        {"side", &c.side},
        {"border", &c.border},
        {"field", &c.field},
        {"accent", &c.accent},
        {"selected", &c.selected},
        {"hover", &c.hover},
        {"rule", &c.rule},
        {"onAccent", &c.onAccent},
        {"onAccentDisabled", &c.onAccentDisabled},
        {"accentHover", &c.accentHover},
        {"accentDeep", &c.accentDeep},
        {"accentDisabled", &c.accentDisabled},
        {"danger", &c.danger},
        {"dangerPaper", &c.dangerPaper},
        {"dangerBorder", &c.dangerBorder},
        {"tint", &c.tint},
        {"tintHover", &c.tintHover},
        {"track", &c.track},
        {"bannerBorder", &c.bannerBorder},
        {"pressed", &c.pressed},
        {"disabled", &c.disabled},
        {"raised", &c.raised},
        {"raisedHover", &c.raisedHover},
    };
    QString sheet = QString::fromLatin1(styleSheet);
    for (const auto& [name, color] : names)
        sheet.replace(QLatin1Char('@') + QLatin1StringView(name) + QLatin1Char('@'), color->name());
    return sheet;
}

QPalette widgetPalette(const Colors& c)
{
    QPalette p;
    p.setColor(QPalette::Window, c.paper);
    p.setColor(QPalette::WindowText, c.ink);
    p.setColor(QPalette::Base, c.paper);
    p.setColor(QPalette::AlternateBase, c.side);
    p.setColor(QPalette::Text, c.ink);
    p.setColor(QPalette::PlaceholderText, c.muted);
    p.setColor(QPalette::Button, c.paper);
    p.setColor(QPalette::ButtonText, c.ink);
    p.setColor(QPalette::Highlight, c.accent);
    p.setColor(QPalette::HighlightedText, c.onAccent);
    p.setColor(QPalette::Link, c.accent);
    p.setColor(QPalette::Mid, c.border);
    p.setColor(QPalette::Midlight, c.field);
    p.setColor(QPalette::ToolTipBase, c.ink);
    p.setColor(QPalette::ToolTipText, c.paper);
    p.setColor(QPalette::Disabled, QPalette::Text, c.disabled);
    p.setColor(QPalette::Disabled, QPalette::WindowText, c.disabled);
    p.setColor(QPalette::Disabled, QPalette::ButtonText, c.disabled);
    return p;
}

} // namespace

void Theme::apply(QApplication& app, bool dark)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    // Noto Sans has no Georgian letters; naming its Georgian sibling right after it keeps
    // Georgian text in the same family's design instead of whatever fallback the system finds.
    QFont font(QStringLiteral("Noto Sans"));
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Georgian"),
                      QStringLiteral("DejaVu Sans")});
    font.setPointSize(10);
    QApplication::setFont(font);
    setDark(app, dark);
}

void Theme::setDark(QApplication& app, bool dark)
{
    palette::useDark(dark);
    QApplication::setPalette(widgetPalette(palette::current()));
    // Setting the sheet restyles every widget, and the painted rows read the palette as they
    // paint, so the whole window changes in one pass.
    app.setStyleSheet(filledSheet(palette::current()));
}

void Theme::follow(QApplication& app, ColorSchemeSource& source)
{
    QObject::connect(&source, &ColorSchemeSource::darkChanged, &app, [&app, &source] {
        if (source.dark() != palette::isDark())
            setDark(app, source.dark());
    });
}

void Theme::setRole(QWidget* widget, const char* role)
{
    widget->setProperty("vlRole", QString::fromLatin1(role));
    // A widget not yet shown takes its role when it is first polished; only one already on
    // screen needs restyling now.
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace vl
