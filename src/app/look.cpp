// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"

#include <QApplication>
#include <QPalette>
#include <QStyleHints>
#include <QToolTip>

#include <iterator>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

/// The colours of a role in the order of the groups; null: as it was.
struct RoleColors
{
    QPalette::ColorRole role;
    const char *colors[std::size(groups)];
};

// The light desktop that the program's own colours start from, whatever desktop it runs on. The roles that
// are missing have own colours in every group.
constexpr RoleColors lightColors[] = {
    {QPalette::WindowText, {"#000", "#000", "#5c5c5c"}},
    {QPalette::Light, {"#fff", "#fff", "#fff"}},
    {QPalette::Midlight, {"#cacaca", "#cacaca", "#cacaca"}},
    {QPalette::Dark, {"#9f9f9f", "#9f9f9f", "#bebebe"}},
    {QPalette::Mid, {"#b8b8b8", "#b8b8b8", "#b8b8b8"}},
    {QPalette::Text, {"#000", "#000", "#5c5c5c"}},
    {QPalette::BrightText, {"#fff", "#fff", "#fff"}},
    {QPalette::ButtonText, {"#000", "#000", "#5c5c5c"}},
    {QPalette::Base, {"#fff", "#fff", "#efefef"}},
    {QPalette::Window, {"#efefef", "#efefef", "#efefef"}},
    {QPalette::Shadow, {"#767676", "#767676", "#b1b1b1"}},
    {QPalette::Link, {"#4f7022", "#4f7022", "#4f7022"}},
    {QPalette::LinkVisited, {"#7a4a8c", "#7a4a8c", "#7a4a8c"}},
    {QPalette::AlternateBase, {"#f7f7f7", "#f7f7f7", "#f7f7f7"}},
    {QPalette::ToolTipBase, {"#ffffdc", "#ffffdc", "#ffffdc"}},
    {QPalette::ToolTipText, {"#000", "#000", "#000"}},
    {QPalette::PlaceholderText, {"#6a6a6a", "#6a6a6a", "#6a6a6a"}},
};

constexpr RoleColors ownColors[] = {
    {QPalette::Link, {"#5a8026", nullptr, nullptr}},
    {QPalette::Window, {"#fbfbfb", "#eee", nullptr}},
    {QPalette::AlternateBase, {"#f4f4f4", "#f4f4f4", nullptr}},
    {QPalette::HighlightedText, {"#fff", "#f4f4f4", "#f0f0f0"}},
    {QPalette::Highlight, {"#8a9aa7", "#94a5b3", "#9fb1bf"}},
    {QPalette::Button, {"#fafafa", "#f2f2f2", "#d8d8d8"}},
};

// Some desktops have a palette of its own for one of these.
constexpr const char *classesOfThemes[] = {
    "QAbstractButton", "QAbstractItemView", "QCheckBox", "QComboBox",   "QGroupBox",        "QHeaderView",
    "QLabel",          "QLineEdit",         "QMenu",     "QMenuBar",    "QMessageBoxLabel", "QRadioButton",
    "QTabBar",         "QTextControl",      "QTextEdit", "QToolButton",
};

// Deliberate: the blanks after some commas and before some braces, and the size grip's height and width
// without a unit. The line breaks and what indents the lines are for the reader alone.
const auto styleSheetLines = uR"(
QGroupBox,QPushButton,QToolButton{font:bold 8pt;color:#444}
QLabel,QCheckBox{font-size:8pt;color:#222}
QPushButton{border-radius:4px}
QPushButton[flat='false']{
    background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fafafa,stop:1 #dadada);
    border:2px solid #c4c4c4;
    padding:2px 6px}
QPushButton[flat='false']:hover{
    color:#282828;
    background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fafafa,stop:1 #c6c6c6);
    border-color:#aaa}
QPushButton:checked, QPushButton[flat='false']:hover:checked,QPushButton[flat='false']:pressed {
    color:#222;
    background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #ddd, stop:0.5 #eee, stop:1 #aaa);
    border-color:#848484}
QPushButton[flat='false']:!hover:checked {
    background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #ddd, stop:0.5 #f4f4f4, stop:1 #c6c6c6);
    color:#222;
    border-color:#888}
QPushButton[flat='false']:pressed {
    background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #eee,stop:1 #ccc)}
QToolButton{border:2px solid #eee;border-radius:5px}
QToolButton:hover{border:2px solid #c4c4c4}
QToolButton:checked{border:2px solid #aaa;background-color:#eee}
QToolBar > QToolButton{border:2px solid transparent}
QMenu,QAbstractItemView,QDateTimeEdit,QComboBox,QSpinBox,QDoubleSpinBox,QLineEdit,QPlainTextEdit{
    font-weight:bold;
    color:#333}
QAbstractItemView{font-size:8pt}
QGroupBox{border:2px solid #ddd;border-radius:4px;margin-top:8px;padding-top:8px;}
QGroupBox::title{subcontrol-origin:margin;padding:2px 4px;left:8px;}
QListWidget{background:white}
QListWidget:focus,QTextEdit:focus,QLineEdit:focus,QPlainTextEdit:focus{border-color:#999}
QSizeGrip{background-image:url(:/img/size_grip.png);height:16;width:16;}
)"_s;

QString styleSheet()
{
    QString rules;
    for (const QStringView line : QStringView(styleSheetLines).tokenize(u'\n'))
        rules += line.trimmed();
    return rules;
}

void setColors(QPalette &palette, std::span<const RoleColors> rows)
{
    for (const RoleColors &row : rows) {
        for (size_t i = 0; i < std::size(groups); ++i) {
            if (row.colors[i])
                palette.setBrush(groups[i], row.role, QColor(QLatin1StringView(row.colors[i])));
        }
    }
}

QPalette lookPalette()
{
    QPalette palette;
    setColors(palette, lightColors);
    setColors(palette, ownColors);
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    for (const QPalette::ColorGroup group : groups)
        palette.setBrush(group, QPalette::Accent, palette.brush(group, QPalette::Highlight));
#endif
    return palette;
}

} // namespace

void applyLook()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QGuiApplication::styleHints()->setColorScheme(Qt::ColorScheme::Light);
#endif
    const QPalette palette = lookPalette();
    QApplication::setPalette(palette);
    for (const char *name : classesOfThemes) {
        if (QApplication::palette(name) != palette)
            QApplication::setPalette(palette, name);
    }
    QToolTip::setPalette(palette);
    qApp->setStyleSheet(styleSheet());
}
