#include "app/kit/Theme.h"

#include "app/kit/Palette.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QWidget>

namespace vl {

namespace {

using namespace palette;

const char* const styleSheet = R"(
QWidget { color: #1d2329; }
QMainWindow, QDialog { background: #ffffff; }
QWidget[vlRole="sidebar"] { background: #f3f5f7; border-right: 1px solid #e1e6ea; }
QWidget[vlRole="account"] { border-top: 1px solid #e1e6ea; }
QWidget[vlRole="card"] { background: #ffffff; border: 1px solid #e1e6ea; border-radius: 14px; }
QWidget[vlRole="banner"] { background: #e8f4f1; border-bottom: 1px solid #c5e2dc; }
QLabel[vlRole="brand"] { color: #1e7f74; font-size: 15pt; font-weight: 700; }
QLabel[vlRole="display"] { color: #1d2329; font-size: 30pt; font-weight: 700; }
QLabel[vlRole="title"] { color: #1d2329; font-size: 16pt; font-weight: 600; }
QLabel[vlRole="subtitle"] { color: #5f6b76; font-size: 10pt; }
QLabel[vlRole="caption"] { color: #5f6b76; font-size: 9pt; }
QLabel[vlRole="name"] { color: #1d2329; font-weight: 600; }
QLabel[vlRole="key"] {
    color: #1d2329; font-family: "DejaVu Sans Mono", "Noto Sans Mono", monospace;
    font-size: 11pt; font-weight: 600;
}
QLabel[vlRole="avatar"] {
    background: #d6ece8; color: #1e7f74; border-radius: 17px; font-weight: 700;
    min-width: 34px; max-width: 34px; min-height: 34px; max-height: 34px;
}
QLabel[vlRole="error"] {
    color: #a8261b; background: #fdf1f0; border: 1px solid #f6cdc9; border-radius: 8px;
    padding: 8px 10px;
}
QLineEdit {
    border: 1px solid #d3dae0; border-radius: 8px; padding: 8px 10px; background: #ffffff;
    selection-background-color: #1e7f74; selection-color: #ffffff;
}
QLineEdit:focus { border: 1px solid #1e7f74; }
QLineEdit:read-only { background: #f3f5f7; color: #5f6b76; }
QLineEdit[vlRole="error"], QPlainTextEdit[vlRole="error"], QComboBox[vlRole="error"],
QDateEdit[vlRole="error"] {
    border: 1px solid #a8261b; border-radius: 8px; background: #fdf1f0;
}
QPushButton {
    border: 1px solid #d3dae0; border-radius: 8px; padding: 7px 16px; background: #ffffff;
}
QPushButton:hover { background: #f3f5f7; }
QPushButton:pressed { background: #e7ebef; }
QPushButton:disabled { color: #9aa3ac; }
QPushButton[vlRole="primary"] {
    background: #1e7f74; border-color: #1e7f74; color: #ffffff; font-weight: 600;
}
QPushButton[vlRole="primary"]:hover { background: #196d63; border-color: #196d63; }
QPushButton[vlRole="primary"]:pressed { background: #145a52; border-color: #145a52; }
QPushButton[vlRole="primary"]:disabled {
    background: #92c3bd; border-color: #92c3bd; color: #f2f9f8;
}
QPushButton[vlRole="link"] {
    border: none; background: transparent; color: #1e7f74; padding: 2px 0; text-align: left;
}
QPushButton[vlRole="link"]:hover { color: #145a52; text-decoration: underline; }
QPushButton[vlRole="link"]:disabled { color: #9aa3ac; }
QPushButton[vlRole="quiet"] {
    border: none; background: transparent; color: #5f6b76; padding: 6px 10px;
}
QPushButton[vlRole="quiet"]:hover { background: #e7ebef; color: #1d2329; }
QPushButton[vlRole="star"] {
    border: none; background: transparent; color: #1e7f74; font-size: 20pt; padding: 0px 4px;
}
QPushButton[vlRole="star"]:hover { color: #145a52; }
QToolButton[vlRole="dismiss"] {
    border: none; border-radius: 6px; padding: 4px 8px; color: #1e7f74; background: transparent;
}
QToolButton[vlRole="dismiss"]:hover { background: #d3eae5; }
QListWidget[vlRole="sections"] { background: transparent; border: none; outline: none; }
QListWidget[vlRole="sections"]::item { padding: 0px; border: none; }
QToolButton[vlRole="chip"] {
    border: 1px solid #d3dae0; border-radius: 13px; padding: 4px 12px; background: #ffffff;
}
QToolButton[vlRole="chip"]:hover { background: #f3f5f7; }
QToolButton[vlRole="chip"]:checked {
    background: #1e7f74; border-color: #1e7f74; color: #ffffff; font-weight: 600;
}
QPushButton[vlRole="ticket"] {
    border: 1px solid #e1e6ea; border-radius: 10px; padding: 8px 12px; background: #fbfcfc;
    text-align: left;
}
QPushButton[vlRole="ticket"]:hover { border-color: #1e7f74; background: #f3faf8; }
QLabel[vlRole="nudge"] {
    background: #e8f4f1; color: #145a52; border-radius: 8px; padding: 8px 12px;
}
QLabel[vlRole="tag"] {
    background: #e8f4f1; color: #1e7f74; border-radius: 9px; padding: 2px 9px; font-weight: 600;
}
QLabel[vlRole="stamp"] {
    color: #a8261b; border: 2px solid #a8261b; border-radius: 6px; padding: 2px 8px;
    font-weight: 800;
}
QLabel[vlRole="section"] {
    color: #5f6b76; font-size: 8pt; font-weight: 700; letter-spacing: 1px;
}
QListView[vlRole="ledger"], QListWidget[vlRole="ledger"] {
    border: none; background: #ffffff; outline: none;
}
QWidget[vlRole="pane"] { background: #fbfcfc; border-left: 1px solid #e1e6ea; }
QScrollArea[vlRole="plain"], QScrollArea[vlRole="rail"] {
    border: none; background: transparent;
}
QScrollArea[vlRole="rail"] > QWidget > QWidget { background: transparent; }
QScrollArea[vlRole="rail"] QScrollBar:horizontal {
    height: 4px; background: transparent; margin: 0px; border: none;
}
QScrollArea[vlRole="rail"] QScrollBar::handle:horizontal {
    background: #d3dae0; border-radius: 2px; min-width: 30px;
}
QScrollArea[vlRole="rail"] QScrollBar::add-line:horizontal,
QScrollArea[vlRole="rail"] QScrollBar::sub-line:horizontal { width: 0px; border: none; }
QScrollArea[vlRole="rail"] QScrollBar::add-page:horizontal,
QScrollArea[vlRole="rail"] QScrollBar::sub-page:horizontal { background: transparent; }
QProgressBar[vlRole="busy"] {
    border: none; background: #e3efed; border-radius: 2px;
    min-height: 4px; max-height: 4px;
}
QProgressBar[vlRole="busy"]::chunk { background: #1e7f74; border-radius: 2px; }
QMessageBox QLabel#qt_msgbox_label {
    min-width: 300px; font-size: 11pt; font-weight: 600; padding: 6px 2px 10px 2px;
}
QMessageBox QPushButton { min-width: 88px; }
QMenuBar { background: #ffffff; border-bottom: 1px solid #e1e6ea; padding: 2px 4px; }
QMenuBar::item { padding: 4px 10px; border-radius: 6px; background: transparent; }
QMenuBar::item:selected { background: #e8f4f1; }
QMenu { background: #ffffff; border: 1px solid #d3dae0; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 24px; border-radius: 6px; }
QMenu::item:selected { background: #e8f4f1; color: #1d2329; }
QMenu::separator { height: 1px; background: #e1e6ea; margin: 4px 8px; }
)";

QPalette lightPalette()
{
    QPalette p;
    p.setColor(QPalette::Window, paper);
    p.setColor(QPalette::WindowText, ink);
    p.setColor(QPalette::Base, paper);
    p.setColor(QPalette::AlternateBase, side);
    p.setColor(QPalette::Text, ink);
    p.setColor(QPalette::PlaceholderText, muted);
    p.setColor(QPalette::Button, paper);
    p.setColor(QPalette::ButtonText, ink);
    p.setColor(QPalette::Highlight, accent);
    p.setColor(QPalette::HighlightedText, paper);
    p.setColor(QPalette::Link, accent);
    p.setColor(QPalette::Mid, border);
    p.setColor(QPalette::Midlight, field);
    p.setColor(QPalette::ToolTipBase, ink);
    p.setColor(QPalette::ToolTipText, paper);
    return p;
}

} // namespace

void Theme::apply(QApplication& app)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(lightPalette());
    // Noto Sans has no Georgian letters; naming its Georgian sibling right after it keeps
    // Georgian text in the same family's design instead of whatever fallback the system finds.
    QFont font(QStringLiteral("Noto Sans"));
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Georgian"),
                      QStringLiteral("DejaVu Sans")});
    font.setPointSize(10);
    QApplication::setFont(font);
    app.setStyleSheet(QString::fromLatin1(styleSheet));
}

void Theme::setRole(QWidget* widget, const char* role)
{
    widget->setProperty("vlRole", QString::fromLatin1(role));
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace vl
