// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/faketranslator.h"

#include <QMap>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A language in which the kinds sort in another order than in English.
QString inAnotherOrder(QLatin1StringView context, const QString &text)
{
    static const QMap<QString, QString> texts = {
        {u"Replace"_s, u"Ersetzen"_s}, {u"Trim"_s, u"Beschneiden"_s},      {u"Change Case"_s, u"Schrift"_s},
        {u"Insert Text"_s, u"Text"_s}, {u"Enumerate"_s, u"Zahl"_s},        {u"Position"_s, u"Stelle"_s},
        {u"Start"_s, u"Anfang"_s},     {u"Start Number"_s, u"Startzahl"_s}};
    return context == "Rules"_L1 ? texts.value(text) : QString();
}

} // namespace

/// The rules: the combo box, the editors, the chain as shown in the list, and the editing of the chain.
class MainWindowRules : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    [[nodiscard]] QComboBox *comboBox() const { return window->child<QComboBox>("comboBoxRules"); }
    [[nodiscard]] QStringList comboTexts() const
    {
        QStringList texts;
        for (int i = 0; i < comboBox()->count(); ++i)
            texts.append(comboBox()->itemText(i));
        return texts;
    }
    [[nodiscard]] int page() const
    {
        return window->child<QStackedWidget>("stackedWidgetRules")->currentIndex();
    }
    void addThreeRules() const
    {
        window->addInsert(u"a"_s);
        window->addInsert(u"b"_s);
        window->addInsert(u"c"_s);
    }
    static QString insertRule(QChar text) { return u"Insert Text: '%1' / Position 0 / Start"_s.arg(text); }
    static QStringList insertRules(const QString &texts)
    {
        QStringList rules;
        for (const QChar text : texts)
            rules.append(insertRule(text));
        return rules;
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
    }
    void cleanup()
    {
        window.reset();
        settings.reset();
    }

    void comboBoxIsSortedByNameAndHoldsTheKeys()
    {
        QCOMPARE(comboTexts(),
                 QStringList({u"Change Case"_s, u"Enumerate"_s, u"Insert Text"_s, u"Replace"_s, u"Trim"_s}));
        QList<int> keys;
        for (int i = 0; i < comboBox()->count(); ++i) {
            QCOMPARE(comboBox()->itemData(i).typeId(), int{QMetaType::Int});
            QVERIFY(comboBox()->itemIcon(i).isNull());
            keys.append(comboBox()->itemData(i).toInt());
        }
        QCOMPARE(keys, QList<int>({2, 4, 3, 0, 1}));
        QCOMPARE(comboBox()->currentIndex(), 0);
        QCOMPARE(page(), int{ChangeCaseKind});
    }

    void everyKindHasItsPage()
    {
        QCOMPARE(window->child<QStackedWidget>("stackedWidgetRules")->count(), 5);
        QVERIFY(window->editor<RuleWidgetReplace>(ReplaceKind));
        QVERIFY(window->editor<RuleWidgetTrim>(TrimKind));
        QVERIFY(window->editor<RuleWidgetChangeCase>(ChangeCaseKind));
        QVERIFY(window->editor<RuleWidgetInsertText>(InsertTextKind));
        QVERIFY(window->editor<RuleWidgetEnumerate>(EnumerateKind));
        QCOMPARE(page(), int{EnumerateKind});
    }

    void noComboItemShowsPageNull()
    {
        QVERIFY(window->chooseKind(TrimKind));
        QCOMPARE(page(), int{TrimKind});
        comboBox()->setCurrentIndex(-1);
        QCOMPARE(page(), 0);
    }

    void previewOffShowsCurrentNamesWhateverTheRules()
    {
        window->drop({tree->addFile(u"a.txt"_s)});
        window->addInsert(u"x"_s);
        window->addEnumerate(5);
        QCOMPARE(window->rowTexts(), QStringList{u"a.txt"_s});
        window->click("checkBoxShowFullPath");
        QCOMPARE(window->rowTexts(), QStringList{tree->path(u"a.txt"_s)});
    }

    void emptyChainWithPreviewShowsCurrentNames()
    {
        window->drop({tree->addFile(u"a.txt"_s), tree->addFile(u"B"_s)});
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList({u"a.txt"_s, u"B"_s}));
    }

    void rulesApplyInTheirOrder()
    {
        window->click("buttonPreview");
        window->drop({tree->addFile(u"a.txt"_s), tree->addFile(u"b.txt"_s)});
        window->addInsert(u"one "_s);
        window->addReplace(u"one"_s, u"two"_s);
        window->addEnumerate(1, 1);
        QCOMPARE(window->rowTexts(), QStringList({u"01two a.txt"_s, u"02two b.txt"_s}));
        window->addTrim(0, 2);
        window->addChangeCase(&RuleWidgetChangeCase::radioButtonUpper);
        QCOMPARE(window->rowTexts(), QStringList({u"TWO A.txt"_s, u"TWO B.txt"_s}));
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList({u"a.txt"_s, u"b.txt"_s}));
    }

    void fileAddedWithPreviewOnShowsItsNewNameAtOnce()
    {
        window->addInsert(u"new "_s);
        window->click("buttonPreview");
        window->drop({tree->addFile(u"a.txt"_s)});
        QCOMPARE(window->rowTexts(), QStringList{u"new a.txt"_s});
    }

    void movingAFileToAnotherRowChangesItsNumber()
    {
        window->drop(tree->addFiles(u"f%1.txt"_s, 3));
        window->addEnumerate(1);
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList({u"1f000.txt"_s, u"2f001.txt"_s, u"3f002.txt"_s}));
        window->files()->setCurrentRow(2);
        window->click("buttonFileListUp");
        QCOMPARE(window->rowTexts(), QStringList({u"1f000.txt"_s, u"2f002.txt"_s, u"3f001.txt"_s}));
        window->click("buttonFileListUp");
        window->click("buttonFileListDown");
        QCOMPARE(window->rowTexts(), QStringList({u"1f000.txt"_s, u"2f002.txt"_s, u"3f001.txt"_s}));
        window->files()->setCurrentRow(0);
        window->click("buttonFileListRemove");
        QCOMPARE(window->rowTexts(), QStringList({u"1f002.txt"_s, u"2f001.txt"_s}));
    }

    void languageChangeSortsTheKindsAnewAndKeepsTheSelectedOne()
    {
        QVERIFY(window->chooseKind(TrimKind));
        window->addInsert(u"a"_s);
        window->addEnumerate(7);
        window->selectRule(1);
        QVERIFY(window->chooseKind(TrimKind));
        std::optional<FakeTranslator> translator(inAnotherOrder);
        QCoreApplication::processEvents();
        QCOMPARE(comboTexts(),
                 QStringList({u"Beschneiden"_s, u"Ersetzen"_s, u"Schrift"_s, u"Text"_s, u"Zahl"_s}));
        QCOMPARE(comboBox()->currentText(), u"Beschneiden"_s);
        QCOMPARE(page(), int{TrimKind});
        QCOMPARE(window->rules(), QStringList({u"Text: 'a' / Stelle 0 / Anfang"_s,
                                               u"Zahl: Startzahl 7 / Stelle 0 / Anfang"_s}));
        QCOMPARE(window->currentRule(), 1);
        translator.reset();
        QCoreApplication::processEvents();
        QCOMPARE(comboBox()->currentText(), u"Trim"_s);
        QCOMPARE(window->currentRule(), 1);
        QCOMPARE(window->rules().constFirst(), insertRule(u'a'));
    }

    void doubleSlashesOfTheFolderAreCollapsedInTheTextOnly()
    {
        tree->addFile(u"sub/a.txt"_s);
        const QString odd = u'/' + tree->path(u"sub//a.txt"_s);
        window->files()->addItem(u"row"_s);
        window->files()->item(0)->setData(Qt::UserRole, odd);
        window->click("checkBoxShowFullPath");
        QCOMPARE(window->rowTexts(), QStringList{tree->path(u"sub/a.txt"_s)});
        QCOMPARE(window->rowPaths(), QStringList{odd});
    }

    void doubleSlashesThatQtKeepsAreCollapsedToo()
    {
        // Only the paths of resources, and of network shares elsewhere, keep theirs.
        const QString kept = u":/a//b/c.txt"_s;
        QVERIFY(QFileInfo(kept).absolutePath().contains("//"_L1));
        window->get()->addPath(kept);
        window->click("checkBoxShowFullPath");
        QCOMPARE(window->rowTexts(), QStringList{u":/a/b/c.txt"_s});
    }

    void describesEveryKind()
    {
        window->addReplace(u"a"_s, u"b"_s);
        window->addTrim(3, 4, false);
        window->addChangeCase(&RuleWidgetChangeCase::radioButtonFirstLetters);
        window->addInsert(u"t"_s, 9);
        window->addEnumerate(5, 2, 6, false);
        QCOMPARE(window->rules(), QStringList({u"Replace: 'a' - 'b'"_s, u"Trim: 3 - 4 / End"_s,
                                               u"Change Case: Uppercase first letter of each word"_s,
                                               u"Insert Text: 't' / Position 9 / Start"_s,
                                               u"Enumerate: Start Number 5 / Position 6 / End"_s}));
    }

    void addingWithNothingSelectedLeavesNothingSelected()
    {
        addThreeRules();
        QCOMPARE(window->rules(), insertRules(u"abc"_s));
        QCOMPARE(window->currentRule(), -1);
        QVERIFY(window->ruleTree()->selectedItems().isEmpty());
    }

    void addingKeepsTheSelectedRow()
    {
        addThreeRules();
        window->selectRule(2);
        window->addInsert(u"d"_s);
        QCOMPARE(window->currentRule(), 2);
        QVERIFY(window->ruleTree()->topLevelItem(2)->isSelected());
        window->selectRule(0);
        window->addInsert(u"e"_s);
        QCOMPARE(window->currentRule(), 0);
        QCOMPARE(window->rules(), insertRules(u"abcde"_s));
    }

    void addingAlwaysRefreshesTheRows()
    {
        window->drop({tree->addFile(u"a.txt"_s)});
        window->spoilRowTexts();
        window->addInsert(u"x"_s);
        QCOMPARE(window->rowTexts(), QStringList{u"a.txt"_s});
    }

    void removeOnTheOnlyRuleEmptiesTheListAndLeavesNothingSelected()
    {
        window->addInsert(u"a"_s);
        window->selectRule(0);
        window->click("buttonRuleListRemove");
        QCOMPARE(window->rules(), QStringList());
        QCOMPARE(window->currentRule(), -1);
    }

    void removeMovesTheSelectionUpButStaysOnTheFirstRow()
    {
        addThreeRules();
        window->selectRule(2);
        window->click("buttonRuleListRemove");
        QCOMPARE(window->rules(), insertRules(u"ab"_s));
        QCOMPARE(window->currentRule(), 1);
        window->selectRule(0);
        window->click("buttonRuleListRemove");
        QCOMPARE(window->rules(), insertRules(u"b"_s));
        QCOMPARE(window->currentRule(), 0);
    }

    void removeInTheMiddleMovesTheSelectionUp()
    {
        addThreeRules();
        window->selectRule(1);
        window->click("buttonRuleListRemove");
        QCOMPARE(window->rules(), insertRules(u"ac"_s));
        QCOMPARE(window->currentRule(), 0);
    }

    void upAndDownMoveTheRuleAndItsSelection()
    {
        window->click("buttonPreview");
        window->drop({tree->addFile(u"f"_s)});
        addThreeRules();
        QCOMPARE(window->rowTexts(), QStringList{u"cbaf"_s});
        window->selectRule(2);
        window->click("buttonRuleListUp");
        QCOMPARE(window->rules(), insertRules(u"acb"_s));
        QCOMPARE(window->currentRule(), 1);
        QCOMPARE(window->rowTexts(), QStringList{u"bcaf"_s});
        window->click("buttonRuleListUp");
        QCOMPARE(window->rules(), insertRules(u"cab"_s));
        window->click("buttonRuleListDown");
        QCOMPARE(window->rules(), insertRules(u"acb"_s));
        QCOMPARE(window->currentRule(), 1);
    }

    void upOnTheFirstDownOnTheLastAndRemoveWithoutSelectionChangeNothing_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("button");
        QTest::newRow("up on row 0") << 0 << u"buttonRuleListUp"_s;
        QTest::newRow("down on the last row") << 2 << u"buttonRuleListDown"_s;
        QTest::newRow("remove without a selection") << -1 << u"buttonRuleListRemove"_s;
        QTest::newRow("up without a selection") << -1 << u"buttonRuleListUp"_s;
        QTest::newRow("down without a selection") << -1 << u"buttonRuleListDown"_s;
    }

    void upOnTheFirstDownOnTheLastAndRemoveWithoutSelectionChangeNothing()
    {
        QFETCH(int, selected);
        QFETCH(QString, button);
        window->drop({tree->addFile(u"f"_s)});
        addThreeRules();
        window->click("buttonPreview");
        if (selected >= 0)
            window->selectRule(selected);
        window->spoilRowTexts();
        const QTreeWidgetItem *first = window->ruleTree()->topLevelItem(0);
        window->click(button.toLatin1().constData());
        QCOMPARE(window->rules(), insertRules(u"abc"_s));
        QCOMPARE(window->currentRule(), selected);
        QCOMPARE(window->ruleTree()->topLevelItem(0), first);
        QCOMPARE(window->rowTexts(), QStringList{u"spoilt"_s});
    }

    void editingTheListWithPreviewOffRefreshesNoRow()
    {
        window->drop({tree->addFile(u"f"_s)});
        addThreeRules();
        window->selectRule(0);
        window->spoilRowTexts();
        window->click("buttonRuleListDown");
        window->click("buttonRuleListUp");
        window->click("buttonRuleListRemove");
        window->click("buttonRuleListClear");
        QCOMPARE(window->rowTexts(), QStringList{u"spoilt"_s});
    }

    void buttonsOnAnEmptyRuleList()
    {
        for (const char *button :
             {"buttonRuleListUp", "buttonRuleListDown", "buttonRuleListRemove", "buttonRuleListClear"}) {
            window->click(button);
            QCOMPARE(window->rules(), QStringList());
        }
    }

    void clearWithPreviewOnShowsCurrentNamesAgain()
    {
        window->drop({tree->addFile(u"f"_s)});
        window->click("buttonPreview");
        addThreeRules();
        QCOMPARE(window->rowTexts(), QStringList{u"cbaf"_s});
        window->selectRule(1);
        window->click("buttonRuleListClear");
        QCOMPARE(window->rules(), QStringList());
        QCOMPARE(window->rowTexts(), QStringList{u"f"_s});
        QCOMPARE(window->currentRule(), -1);
    }

    void changingAnEditorAfterAddingChangesNoRuleOfTheList()
    {
        window->drop({tree->addFile(u"f"_s)});
        window->click("buttonPreview");
        window->addInsert(u"x"_s);
        auto *form = window->editor<RuleWidgetInsertText>(InsertTextKind);
        form->lineEditText->setText(u"changed"_s);
        form->spinBoxPosition->setValue(1);
        form->direction.radioButtonEnd->setChecked(true);
        QCOMPARE(window->rules(), insertRules(u"x"_s));
        window->click("buttonPreview");
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList{u"xf"_s});
    }

    void editorsKeepTheirValuesBetweenAdditions()
    {
        window->addInsert(u"x"_s, 3, false);
        QVERIFY(window->chooseKind(TrimKind));
        QVERIFY(window->chooseKind(InsertTextKind));
        window->click("buttonAddRule");
        QCOMPARE(window->rules(), QStringList({u"Insert Text: 'x' / Position 3 / End"_s,
                                               u"Insert Text: 'x' / Position 3 / End"_s}));
    }

    void invalidPatternChangesNoName()
    {
        window->click("buttonPreview");
        window->drop({tree->addFile(u"a(b.txt"_s)});
        window->addReplace(u"(["_s, u"x"_s, true);
        QCOMPARE(window->rowTexts(), QStringList{u"a(b.txt"_s});
    }
};

QTEST_MAIN(MainWindowRules)
#include "tst_mainwindow_rules.moc"
