// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"

#include <QApplication>
#include <QPalette>
#include <QTest>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

class TestLook final : public QObject
{
    Q_OBJECT

private slots:
    void styleSheetIsOneExactString();
    void paletteHasItsColors_data();
    void paletteHasItsColors();
    void otherColorsAreThoseOfALightDesktop();
    void desktopHasNoPartInTheColors();
    void textsStandOut_data();
    void textsStandOut();
};

namespace {

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

/// What a desktop can put in the way: a palette for everything, one for a class of widgets, one for tool
/// tips.
void setDesktop(const QColor &background, const QColor &text)
{
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        palette.setColor(QPalette::ColorRole(role), background);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    QApplication::setPalette(palette);
    QApplication::setPalette(palette, "QMenu");
    QToolTip::setPalette(palette);
}

/// Contrast of two opaque colours by WCAG 2: from 1 to 21.
double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

void TestLook::styleSheetIsOneExactString()
{
    // clang-format off
    const auto expected =
        u"QGroupBox,QPushButton,QToolButton{font:bold 8pt;color:#444}"
        "QLabel,QCheckBox{font-size:8pt;color:#222}"
        "QPushButton{border-radius:4px}"
        "QPushButton[flat='false']{background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fafafa,stop:1 #dadada);border:2px solid #c4c4c4;padding:2px 6px}"
        "QPushButton[flat='false']:hover{color:#282828;background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fafafa,stop:1 #c6c6c6);border-color:#aaa}"
        "QPushButton:checked, QPushButton[flat='false']:hover:checked,QPushButton[flat='false']:pressed {color:#222;background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #ddd, stop:0.5 #eee, stop:1 #aaa);border-color:#848484}"
        "QPushButton[flat='false']:!hover:checked {background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #ddd, stop:0.5 #f4f4f4, stop:1 #c6c6c6);color:#222;border-color:#888}"
        "QPushButton[flat='false']:pressed {background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #eee,stop:1 #ccc)}"
        "QToolButton{border:2px solid #eee;border-radius:5px}"
        "QToolButton:hover{border:2px solid #c4c4c4}"
        "QToolButton:checked{border:2px solid #aaa;background-color:#eee}"
        "QToolBar > QToolButton{border:2px solid transparent}"
        "QMenu,QAbstractItemView,QDateTimeEdit,QComboBox,QSpinBox,QDoubleSpinBox,QLineEdit,QPlainTextEdit{font-weight:bold;color:#333}"
        "QAbstractItemView{font-size:8pt}"
        "QGroupBox{border:2px solid #ddd;border-radius:4px;margin-top:8px;padding-top:8px;}"
        "QGroupBox::title{subcontrol-origin:margin;padding:2px 4px;left:8px;}"
        "QListWidget{background:white}"
        "QListWidget:focus,QTextEdit:focus,QLineEdit:focus,QPlainTextEdit:focus{border-color:#999}"
        "QSizeGrip{background-image:url(:/img/size_grip.png);height:16;width:16;}"_s; // clang-format on
    applyLook();
    QCOMPARE(qApp->styleSheet(), expected);
    QVERIFY(!expected.contains(u'\n'));
}

void TestLook::paletteHasItsColors_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::addColumn<QColor>("color");
    const auto add = [](const char *name, QPalette::ColorRole role, QPalette::ColorGroup group,
                        const QString &color) {
        QTest::newRow(name) << role << group << QColor(color);
    };
    add("link", QPalette::Link, QPalette::Active, u"#5a8026"_s);
    add("window, active", QPalette::Window, QPalette::Active, u"#fbfbfb"_s);
    add("window, inactive", QPalette::Window, QPalette::Inactive, u"#eee"_s);
    add("alternate base, active", QPalette::AlternateBase, QPalette::Active, u"#f4f4f4"_s);
    add("alternate base, inactive", QPalette::AlternateBase, QPalette::Inactive, u"#f4f4f4"_s);
    add("highlighted text, active", QPalette::HighlightedText, QPalette::Active, u"#fff"_s);
    add("highlighted text, inactive", QPalette::HighlightedText, QPalette::Inactive, u"#f4f4f4"_s);
    add("highlighted text, disabled", QPalette::HighlightedText, QPalette::Disabled, u"#f0f0f0"_s);
    add("highlight, active", QPalette::Highlight, QPalette::Active, u"#8a9aa7"_s);
    add("highlight, inactive", QPalette::Highlight, QPalette::Inactive, u"#94a5b3"_s);
    add("highlight, disabled", QPalette::Highlight, QPalette::Disabled, u"#9fb1bf"_s);
    add("button, active", QPalette::Button, QPalette::Active, u"#fafafa"_s);
    add("button, inactive", QPalette::Button, QPalette::Inactive, u"#f2f2f2"_s);
    add("button, disabled", QPalette::Button, QPalette::Disabled, u"#d8d8d8"_s);
}

void TestLook::paletteHasItsColors()
{
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QPalette::ColorGroup, group);
    QFETCH(QColor, color);
    applyLook();
    QCOMPARE(QApplication::palette().color(group, role), color);
    QCOMPARE(QApplication::palette().brush(group, role).style(), Qt::SolidPattern);
}

void TestLook::otherColorsAreThoseOfALightDesktop()
{
    setDesktop(Qt::black, Qt::white);
    applyLook();
    const QPalette palette = QApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        QCOMPARE(palette.color(group, QPalette::WindowText), QColor(Qt::black));
        QCOMPARE(palette.color(group, QPalette::Text), QColor(Qt::black));
        QCOMPARE(palette.color(group, QPalette::ButtonText), QColor(Qt::black));
        QCOMPARE(palette.color(group, QPalette::Base), QColor(Qt::white));
    }
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::Window), QColor(u"#efefef"_s));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::AlternateBase), QColor(u"#f7f7f7"_s));
}

void TestLook::desktopHasNoPartInTheColors()
{
    setDesktop(Qt::white, Qt::black);
    applyLook();
    const QPalette onLight = QApplication::palette();
    setDesktop(Qt::black, Qt::white);
    applyLook();
    for (const QPalette &palette :
         {QApplication::palette(), QApplication::palette("QMenu"), QToolTip::palette()}) {
        for (int number = 0; number < QPalette::NColorRoles; ++number) {
            const auto role = QPalette::ColorRole(number);
            if (role == QPalette::NoRole)
                continue;
            for (const QPalette::ColorGroup group : groups) {
                QCOMPARE(palette.brush(group, role), onLight.brush(group, role));
                // What an application has not set follows the desktop, at once and later.
                QVERIFY2(palette.isBrushSet(group, role), qPrintable(QDebug::toString(role)));
            }
        }
    }
}

void TestLook::textsStandOut_data()
{
    QTest::addColumn<QPalette::ColorRole>("text");
    QTest::addColumn<QPalette::ColorRole>("background");
    QTest::newRow("window") << QPalette::WindowText << QPalette::Window;
    QTest::newRow("view") << QPalette::Text << QPalette::Base;
    QTest::newRow("view, every other row") << QPalette::Text << QPalette::AlternateBase;
    QTest::newRow("button") << QPalette::ButtonText << QPalette::Button;
    QTest::newRow("tool tip") << QPalette::ToolTipText << QPalette::ToolTipBase;
    QTest::newRow("placeholder") << QPalette::PlaceholderText << QPalette::Base;
    QTest::newRow("link in a view") << QPalette::Link << QPalette::Base;
    QTest::newRow("link in a window") << QPalette::Link << QPalette::Window;
    QTest::newRow("visited link in a view") << QPalette::LinkVisited << QPalette::Base;
    QTest::newRow("visited link in a window") << QPalette::LinkVisited << QPalette::Window;
}

void TestLook::textsStandOut()
{
    QFETCH(QPalette::ColorRole, text);
    QFETCH(QPalette::ColorRole, background);
    applyLook();
    const QPalette palette = QApplication::palette();
    for (const QPalette::ColorGroup group : groups) {
        // Deliberate: the green of a link in an active window stays a little below.
        if (text == QPalette::Link && background == QPalette::Window && group == QPalette::Active)
            continue;
        QCOMPARE(palette.color(group, text).alpha(), 255);
        const double found = contrast(palette.color(group, text), palette.color(group, background));
        QVERIFY2(found >= 4.5, qPrintable(u"%1 : 1 in group %2"_s.arg(found).arg(int{group})));
    }
}

QTEST_MAIN(TestLook)
#include "tst_look.moc"
