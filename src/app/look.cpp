// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"

#include <QApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

struct RoleColor
{
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    const char *color;
};

constexpr RoleColor roleColors[] = {
    {QPalette::Active, QPalette::Link, "#5a8026"},
    {QPalette::Active, QPalette::Window, "#fbfbfb"},
    {QPalette::Inactive, QPalette::Window, "#eee"},
    {QPalette::Active, QPalette::AlternateBase, "#f4f4f4"},
    {QPalette::Inactive, QPalette::AlternateBase, "#f4f4f4"},
    {QPalette::Active, QPalette::HighlightedText, "#fff"},
    {QPalette::Inactive, QPalette::HighlightedText, "#f4f4f4"},
    {QPalette::Disabled, QPalette::HighlightedText, "#f0f0f0"},
    {QPalette::Active, QPalette::Highlight, "#8a9aa7"},
    {QPalette::Inactive, QPalette::Highlight, "#94a5b3"},
    {QPalette::Disabled, QPalette::Highlight, "#9fb1bf"},
    {QPalette::Active, QPalette::Button, "#fafafa"},
    {QPalette::Inactive, QPalette::Button, "#f2f2f2"},
    {QPalette::Disabled, QPalette::Button, "#d8d8d8"},
};

// One string without line breaks. Deliberate: the blanks after some commas and before some braces, and the
// size grip's height and width without a unit.
const QString styleSheet =
    u"QGroupBox,QPushButton,QToolButton{font:bold 8pt;color:#444}"
    "QLabel,QCheckBox{font-size:8pt;color:#222}"
    "QPushButton{border-radius:4px}"
    "QPushButton[flat='false']{background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fafafa,stop:1 #dadada);"
    "border:2px solid #c4c4c4;padding:2px 6px}"
    "QPushButton[flat='false']:hover{color:#282828;background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 "
    "#fafafa,stop:1 #c6c6c6);border-color:#aaa}"
    "QPushButton:checked, QPushButton[flat='false']:hover:checked,QPushButton[flat='false']:pressed "
    "{color:#222;background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #ddd, stop:0.5 #eee, stop:1 "
    "#aaa);border-color:#848484}"
    "QPushButton[flat='false']:!hover:checked {background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #ddd, "
    "stop:0.5 #f4f4f4, stop:1 #c6c6c6);color:#222;border-color:#888}"
    "QPushButton[flat='false']:pressed {background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #eee,stop:1 "
    "#ccc)}"
    "QToolButton{border:2px solid #eee;border-radius:5px}"
    "QToolButton:hover{border:2px solid #c4c4c4}"
    "QToolButton:checked{border:2px solid #aaa;background-color:#eee}"
    "QToolBar > QToolButton{border:2px solid transparent}"
    "QMenu,QAbstractItemView,QDateTimeEdit,QComboBox,QSpinBox,QDoubleSpinBox,QLineEdit,QPlainTextEdit{font-"
    "weight:"
    "bold;color:#333}"
    "QAbstractItemView{font-size:8pt}"
    "QGroupBox{border:2px solid #ddd;border-radius:4px;margin-top:8px;padding-top:8px;}"
    "QGroupBox::title{subcontrol-origin:margin;padding:2px 4px;left:8px;}"
    "QListWidget{background:white}"
    "QListWidget:focus,QTextEdit:focus,QLineEdit:focus,QPlainTextEdit:focus{border-color:#999}"
    "QSizeGrip{background-image:url(:/img/size_grip.png);height:16;width:16;}"_s;

} // namespace

void applyLook()
{
    QPalette palette = QApplication::palette();
    for (const RoleColor &entry : roleColors)
        palette.setBrush(entry.group, entry.role, QColor(QLatin1StringView(entry.color)));
    QApplication::setPalette(palette);
    qApp->setStyleSheet(styleSheet);
}
