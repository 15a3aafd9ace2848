// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulechain.h"
#include "rules/ruleenumerate.h"
#include "unit/support/editors.h"

#include <QLocale>
#include <QRadioButton>
#include <QSpinBox>

#include <limits>

using namespace Qt::StringLiterals;

class TestEnumerate final : public QObject
{
    Q_OBJECT

private slots:
    void insertsTheNumber_data();
    void insertsTheNumber();
    void numbersFollowTheRowOfTheFile();
    void swappedFilesSwapTheirNumbers();
    void twoNumberingRulesUseTheSameRow();
    void numbersAreNeverGrouped();
    void describesStartNumberPositionAndDirection();
    void describesInTheCurrentLanguage();
    void editorHasItsWidgetsInOrder();
    void editorStartsWithItsInitialValues();
    void editorLaysOutItsWidgets();
    void editorFollowsTheLanguage();
    void createDataReadsTheEditor();
    void createDataWithoutAnEditorIsNull();

private:
    RuleEnumerate rule;
};

void TestEnumerate::insertsTheNumber_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("leadingZeros");
    QTest::addColumn<int>("startNumber");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("fromStart");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("expected");

    QTest::newRow("row 0 has the start number") << u"a.jpg"_s << 0 << 7 << 0 << true << 0 << u"7a.jpg"_s;
    QTest::newRow("nine") << u"a"_s << 0 << 9 << 0 << true << 0 << u"9a"_s;
    QTest::newRow("nine and one row") << u"a"_s << 0 << 9 << 0 << true << 1 << u"10a"_s;
    QTest::newRow("wider than the minimum is never cut") << u"a"_s << 1 << 0 << 0 << true << 150 << u"150a"_s;
    QTest::newRow("exactly the minimum width") << u"a"_s << 1 << 0 << 0 << true << 15 << u"15a"_s;
    QTest::newRow("most zeros") << u"a"_s << 9 << 0 << 0 << true << 0 << u"0000000000a"_s;
    QTest::newRow("most zeros, three digits") << u"a"_s << 9 << 512 << 0 << true << 0 << u"0000000512a"_s;
    QTest::newRow("before the extension") << u"a.jpg"_s << 2 << 1 << 4 << false << 0 << u"a001.jpg"_s;
    QTest::newRow("behind the extension") << u"a.jpg"_s << 0 << 1 << 0 << false << 0 << u"a.jpg1"_s;
    QTest::newRow("inside") << u"abc"_s << 0 << 1 << 1 << true << 0 << u"a1bc"_s;
    QTest::newRow("beyond the end pads with blanks") << u"ab"_s << 0 << 1 << 4 << true << 0 << u"ab  1"_s;
    QTest::newRow("before the start changes nothing") << u"ab"_s << 0 << 1 << 3 << false << 0 << u"ab"_s;
    QTest::newRow("largest position")
        << u"ab"_s << 0 << 1 << 512 << true << 0 << u"ab"_s + QString(510, u' ') + u'1';
    QTest::newRow("largest position from the end") << u"ab"_s << 0 << 1 << 512 << false << 0 << u"ab"_s;
    QTest::newRow("empty name") << u""_s << 0 << 3 << 0 << true << 4 << u"7"_s;
    QTest::newRow("empty name from the end") << u""_s << 0 << 3 << 0 << false << 4 << u"7"_s;
    QTest::newRow("surrogate pair counts as two") << u"😀a"_s << 0 << 1 << 2 << true << 0 << u"😀1a"_s;
    QTest::newRow("a million rows") << u"a"_s << 2 << 512 << 0 << true << 999999 << u"1000511a"_s;
    QTest::newRow("the last row there can be")
        << u"a"_s << 0 << 512 << 0 << true << std::numeric_limits<int>::max() << u"2147484159a"_s;
}

void TestEnumerate::insertsTheNumber()
{
    QFETCH(QString, name);
    QFETCH(int, leadingZeros);
    QFETCH(int, startNumber);
    QFETCH(int, position);
    QFETCH(bool, fromStart);
    QFETCH(int, row);
    const EnumerateParameters parameters{leadingZeros, startNumber, position, fromStart};
    QTEST(applied(rule, parameters, name, row), "expected");
}

void TestEnumerate::numbersFollowTheRowOfTheFile()
{
    const QStringList names{u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s};
    QStringList fromStart;
    QStringList fromEnd;
    for (int row = 0; row < 3; ++row) {
        fromStart.append(applied(rule, EnumerateParameters{2, 1, 0, true}, names.at(row), row));
        fromEnd.append(applied(rule, EnumerateParameters{2, 1, 4, false}, names.at(row), row));
    }
    QCOMPARE(fromStart, (QStringList{u"001a.jpg"_s, u"002b.jpg"_s, u"003c.jpg"_s}));
    QCOMPARE(fromEnd, (QStringList{u"a001.jpg"_s, u"b002.jpg"_s, u"c003.jpg"_s}));
}

void TestEnumerate::swappedFilesSwapTheirNumbers()
{
    const EnumerateParameters parameters{0, 1, 0, true};
    QCOMPARE(applied(rule, parameters, u"x"_s, 4), u"5x"_s);
    QCOMPARE(applied(rule, parameters, u"y"_s, 3), u"4y"_s);
    QCOMPARE(applied(rule, parameters, u"x"_s, 3), u"4x"_s);
    QCOMPARE(applied(rule, parameters, u"y"_s, 4), u"5y"_s);
}

void TestEnumerate::twoNumberingRulesUseTheSameRow()
{
    const RuleData first{&rule, EnumerateParameters{0, 1, 0, true}};
    const RuleData second{&rule, EnumerateParameters{1, 100, 0, false}};
    QString name = u"-"_s;
    for (const RuleData *data : {&first, &second})
        name = applyRuleChain(data, name, 6);
    QCOMPARE(name, u"7-106"_s);
}

void TestEnumerate::numbersAreNeverGrouped()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString german = applied(rule, EnumerateParameters{0, 0, 0, true}, u"a"_s, 1234567);
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QString arabic = applied(rule, EnumerateParameters{9, 0, 0, true}, u"a"_s, 1234567);
    QLocale::setDefault(before);
    QCOMPARE(german, u"1234567a"_s);
    QCOMPARE(arabic, u"0001234567a"_s);
}

void TestEnumerate::describesStartNumberPositionAndDirection()
{
    QCOMPARE(described(rule, EnumerateParameters{0, 1, 0, true}), u"Start Number 1 / Position 0 / Start"_s);
    QCOMPARE(described(rule, EnumerateParameters{9, 512, 511, false}),
             u"Start Number 512 / Position 511 / End"_s);
}

void TestEnumerate::describesInTheCurrentLanguage()
{
    QCOMPARE(rule.name(), u"Enumerate"_s);
    const BracketTranslator translator;
    QCOMPARE(rule.name(), u"[Enumerate]"_s);
    QCOMPARE(described(rule, EnumerateParameters{0, 1, 2, false}),
             u"[Start Number] 1 / [Position] 2 / [End]"_s);
    QCOMPARE(described(rule, EnumerateParameters{0, 1, 2, true}),
             u"[Start Number] 1 / [Position] 2 / [Start]"_s);
}

void TestEnumerate::editorHasItsWidgetsInOrder()
{
    QWidget parent;
    const QWidget *editor = rule.createEditor(&parent);
    QCOMPARE(editor->parentWidget(), &parent);
    const QStringList expected{u"QSpinBox"_s,
                               u"QSpinBox"_s,
                               u"QSpinBox"_s,
                               u"QRadioButton:Start"_s,
                               u"QRadioButton:End"_s,
                               u"QLabel:Start Number"_s,
                               u"QLabel:Leading Zeros"_s,
                               u"QLabel:Position"_s,
                               u"QLabel:Direction"_s};
    QCOMPARE(childLines(*editor), expected);
    const auto *typed = qobject_cast<const RuleWidgetEnumerate *>(editor);
    const auto boxes = editor->findChildren<QSpinBox *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(boxes, (QList<QSpinBox *>{typed->spinBoxStartNumber, typed->spinBoxLeadingZeros,
                                       typed->spinBoxPosition}));
}

void TestEnumerate::editorStartsWithItsInitialValues()
{
    const RuleWidgetEnumerate editor(nullptr);
    QCOMPARE(editor.spinBoxStartNumber->minimum(), 0);
    QCOMPARE(editor.spinBoxStartNumber->maximum(), 512);
    QCOMPARE(editor.spinBoxStartNumber->value(), 0);
    QCOMPARE(editor.spinBoxLeadingZeros->minimum(), 0);
    QCOMPARE(editor.spinBoxLeadingZeros->maximum(), 9);
    QCOMPARE(editor.spinBoxLeadingZeros->value(), 0);
    QCOMPARE(editor.spinBoxPosition->minimum(), 0);
    QCOMPARE(editor.spinBoxPosition->maximum(), 512);
    QCOMPARE(editor.spinBoxPosition->value(), 0);
    QVERIFY(editor.direction.radioButtonStart->isChecked());
    QVERIFY(!editor.direction.radioButtonEnd->isChecked());
}

void TestEnumerate::editorLaysOutItsWidgets()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const QStringList expected{u"0,0 QLabel:Start Number"_s,
                               u"0,1 QSpinBox"_s,
                               u"1,0 QLabel:Leading Zeros"_s,
                               u"1,1 QSpinBox"_s,
                               u"2,0 spacer 16x16 Fixed Minimum"_s,
                               u"3,0 QLabel:Position"_s,
                               u"3,1 QSpinBox"_s,
                               u"4,0 QLabel:Direction"_s,
                               u"4,1 QHBoxLayout(QRadioButton:Start, QRadioButton:End)"_s};
    QCOMPARE(gridLines(*editor), expected);
    const auto *typed = qobject_cast<const RuleWidgetEnumerate *>(editor.get());
    const auto *grid = qobject_cast<const QGridLayout *>(editor->layout());
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), typed->spinBoxStartNumber);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), typed->spinBoxLeadingZeros);
    QCOMPARE(grid->itemAtPosition(3, 1)->widget(), typed->spinBoxPosition);
}

void TestEnumerate::editorFollowsTheLanguage()
{
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    verifyFollowsLanguage(*editor);
    verifyAcceptsLanguageChange(*editor);
}

void TestEnumerate::createDataReadsTheEditor()
{
    const RuleWidgetEnumerate editor(nullptr);
    editor.spinBoxStartNumber->setValue(11);
    editor.spinBoxLeadingZeros->setValue(2);
    editor.spinBoxPosition->setValue(33);
    editor.direction.radioButtonEnd->setChecked(true);
    const auto parameters = captured<EnumerateParameters>(rule, editor);
    QCOMPARE(parameters.startNumber, 11);
    QCOMPARE(parameters.leadingZeros, 2);
    QCOMPARE(parameters.position, 33);
    QVERIFY(!parameters.fromStart);
    editor.direction.radioButtonStart->setChecked(true);
    QVERIFY(captured<EnumerateParameters>(rule, editor).fromStart);
}

void TestEnumerate::createDataWithoutAnEditorIsNull()
{
    QCOMPARE(rule.createData(nullptr), nullptr);
}

QTEST_MAIN(TestEnumerate)
#include "tst_enumerate.moc"
