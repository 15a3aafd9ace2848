// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"

#include <QApplication>
#include <QPalette>
#include <QTest>

using namespace Qt::StringLiterals;

class TestLook final : public QObject
{
    Q_OBJECT

private slots:
    void styleSheetIsOneExactString();
    void paletteHasItsColors_data();
    void paletteHasItsColors();
    void otherColorsStayAsTheyWere();
};

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

void TestLook::otherColorsStayAsTheyWere()
{
    QApplication::setPalette(QPalette(Qt::red));
    const QPalette before = QApplication::palette();
    applyLook();
    QCOMPARE(QApplication::palette().color(QPalette::Inactive, QPalette::Link),
             before.color(QPalette::Inactive, QPalette::Link));
    QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Window),
             before.color(QPalette::Disabled, QPalette::Window));
}

QTEST_MAIN(TestLook)
#include "tst_look.moc"
