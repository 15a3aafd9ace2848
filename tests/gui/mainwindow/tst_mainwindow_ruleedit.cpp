// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/activerules.h"
#include "support/drivenwindow.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Long words, so that labels need more room.
QString longer(QLatin1StringView context, const QString &text)
{
    return context == "Rules"_L1 ? text + " und noch viel mehr"_L1 : QString();
}

} // namespace

/// What a person does with rules that are in the list: switch off, edit, move, double.
class MainWindowRuleEdit : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    void addRules(const QString &texts) const
    {
        for (const QChar text : texts)
            window->addInsert(text);
    }
    /// The texts that the rules insert, in their order; those that are off in brackets.
    [[nodiscard]] QString inserted() const
    {
        QString texts;
        for (int row = 0; row < window->ruleTree()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = window->ruleTree()->topLevelItem(row);
            const QString text = item->text(1).section(u'\'', 1, 1);
            texts += item->checkState(0) == Qt::Checked ? text : u'(' + text + u')';
        }
        return texts;
    }
    void show() const { QVERIFY(window->showActive()); }
    void focusTree(int row) const
    {
        window->selectRule(row);
        window->ruleTree()->setFocus();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    [[nodiscard]] QRect cell(int row, int column) const
    {
        return window->ruleTree()->visualRect(window->ruleTree()->model()->index(row, column));
    }
    [[nodiscard]] QPoint checkBox(int row) const
    {
        QStyleOptionViewItem option;
        option.initFrom(window->ruleTree());
        option.rect = cell(row, 0);
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        const QStyle *style = window->ruleTree()->style();
        return style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, window->ruleTree())
            .center();
    }
    void doubleClick(QPoint place) const
    {
        QWidget *viewport = window->ruleTree()->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
    }
    [[nodiscard]] bool isEditing() const
    {
        return window->child<QPushButton>("buttonApplyRule")->isVisibleTo(window->get());
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

    void everyRuleStartsOn()
    {
        addRules(u"ab"_s);
        QCOMPARE(inserted(), u"ab"_s);
    }

    void ruleThatIsOffIsSkippedByPreviewAndRun()
    {
        window->drop({tree->addFile(u"files/f"_s)});
        addRules(u"abc"_s);
        window->click("buttonPreview");
        QCOMPARE(window->rowTexts(), QStringList{u"cbaf"_s});
        window->ruleTree()->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(window->rowTexts(), QStringList{u"caf"_s});
        // Rows that come later, too.
        window->drop({tree->addFile(u"files/g"_s)});
        QCOMPARE(window->rowTexts(), QStringList({u"caf"_s, u"cag"_s}));
        BoxAnswerer boxes;
        window->click("buttonRename");
        QCOMPARE(tree->names(u"files"_s), QStringList({u"caf"_s, u"cag"_s}));
    }

    void switchingWithPreviewUpRefreshesNoRow()
    {
        window->drop({tree->addFile(u"f"_s)});
        addRules(u"a"_s);
        window->spoilRowTexts();
        window->ruleTree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(window->rowTexts(), QStringList{u"spoilt"_s});
    }

    void switchingToWhereItIsIsNoChange()
    {
        QList<RuleData *> records;
        ActiveRules rules(records);
        rules.insert(0, {std::make_unique<RuleData>(), {}});
        const QSignalSpy switched(&rules, &ActiveRules::switched);
        rules.setOn(0, true);
        QVERIFY(switched.isEmpty());
        rules.setOn(0, false);
        QCOMPARE(switched.size(), 1);
        rules.clear();
    }

    void offMovesWithItsRule()
    {
        addRules(u"abc"_s);
        window->ruleTree()->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
        window->selectRule(1);
        window->click("buttonRuleListUp");
        QCOMPARE(inserted(), u"(b)ac"_s);
        window->click("buttonRuleListDown");
        window->click("buttonRuleListDown");
        QCOMPARE(inserted(), u"ac(b)"_s);
        window->selectRule(0);
        window->click("buttonRuleListRemove");
        QCOMPARE(inserted(), u"c(b)"_s);
        window->click("buttonRuleListClear");
        addRules(u"xy"_s);
        QCOMPARE(inserted(), u"xy"_s);
    }

    void ruleThatIsOffIsDimmed()
    {
        addRules(u"a"_s);
        QTreeWidgetItem *item = window->ruleTree()->topLevelItem(0);
        QVERIFY(!item->data(0, Qt::ForegroundRole).isValid());
        item->setCheckState(0, Qt::Unchecked);
        for (int column : {0, 1})
            QCOMPARE(item->foreground(column).color(), QGuiApplication::palette().placeholderText().color());
        item->setCheckState(0, Qt::Checked);
        QVERIFY(!item->data(1, Qt::ForegroundRole).isValid());
    }

    void languageChangeKeepsWhatIsOff()
    {
        addRules(u"ab"_s);
        window->ruleTree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        const FakeTranslator translator(longer);
        QCoreApplication::processEvents();
        QCOMPARE(inserted(), u"(a)b"_s);
    }

    void checkBoxByMouseAndBySpace()
    {
        addRules(u"ab"_s);
        show();
        QTest::mouseClick(window->ruleTree()->viewport(), Qt::LeftButton, {}, checkBox(1));
        QCOMPARE(inserted(), u"a(b)"_s);
        // Twice in quick succession is back and forth, and edits nothing.
        doubleClick(checkBox(1));
        QVERIFY(!isEditing());
        focusTree(0);
        key(Qt::Key_Space);
        QCOMPARE(inserted(), u"(a)b"_s);
    }

    void editsInPlace_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("F2") << int{Qt::Key_F2};
        QTest::newRow("Return") << int{Qt::Key_Return};
        QTest::newRow("Enter") << int{Qt::Key_Enter};
        QTest::newRow("double click") << 0;
    }

    void editsInPlace()
    {
        QFETCH(int, how);
        window->drop({tree->addFile(u"f"_s)});
        window->click("buttonPreview");
        addRules(u"abc"_s);
        window->ruleTree()->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
        QVERIFY(window->chooseKind(TrimKind));
        show();
        QVERIFY(!isEditing());
        focusTree(1);
        if (how == 0)
            doubleClick(cell(1, 1).center());
        else
            key(static_cast<Qt::Key>(how));
        QVERIFY(isEditing());
        const auto *stack = window->child<QStackedWidget>("stackedWidgetRules");
        QCOMPARE(stack->currentIndex(), int{InsertTextKind});
        auto *form = qobject_cast<RuleWidgetInsertText *>(stack->currentWidget());
        QCOMPARE(form->lineEditText->text(), u"b"_s);
        QCOMPARE(QApplication::focusWidget(), form->lineEditText);
        form->lineEditText->setText(u"new"_s);
        QCOMPARE(inserted(), u"a(b)c"_s);
        // The row has no room for both in every language.
        QVERIFY(!window->child<QToolButton>("buttonRuleSets")->isVisible());
        // Add works meanwhile.
        window->click("buttonAddRule");
        QCOMPARE(inserted(), u"a(b)cnew"_s);
        window->click("buttonApplyRule");
        QCOMPARE(inserted(), u"a(new)cnew"_s);
        QVERIFY(!isEditing());
        QVERIFY(window->child<QToolButton>("buttonRuleSets")->isVisible());
        QCOMPARE(window->currentRule(), 1);
        QCOMPARE(QApplication::focusWidget(), window->ruleTree());
        QCOMPARE(window->rowTexts(), QStringList{u"newcaf"_s});
    }

    void everyKindIsShownAsItIs()
    {
        window->addReplace(u"([ab])"_s, u" \\1 "_s, true);
        window->addTrim(3, 4, false);
        window->addChangeCase(&RuleWidgetChangeCase::radioButtonFirstLetters, false);
        window->addInsert(u" t "_s, 9, false);
        window->addEnumerate(5, 2, 6, false);
        const QStringList rules = window->rules();
        // The editors hold other values then.
        window->addReplace({}, {});
        window->addTrim(0, 1);
        window->addChangeCase(&RuleWidgetChangeCase::radioButtonLower);
        window->addInsert({});
        window->addEnumerate(0);
        window->drop({tree->addFile(u"xaby 12.tXT"_s)});
        window->click("buttonPreview");
        show();
        for (int row = 0; row < 5; ++row) {
            const QStringList names = window->rowTexts();
            focusTree(row);
            key(Qt::Key_F2);
            window->click("buttonApplyRule");
            QCOMPARE(window->rowTexts(), names);
        }
        QCOMPARE(window->rules().first(5), rules);
    }

    void escapeLeavesTheRuleAsItIs()
    {
        addRules(u"a"_s);
        show();
        focusTree(0);
        key(Qt::Key_F2);
        window->editor<RuleWidgetInsertText>(InsertTextKind)->lineEditText->setText(u"new"_s);
        key(Qt::Key_Escape);
        QVERIFY(!isEditing());
        QCOMPARE(inserted(), u"a"_s);
        QCOMPARE(QApplication::focusWidget(), window->ruleTree());
        // The button does the same.
        key(Qt::Key_F2);
        window->click("buttonLeaveRule");
        QVERIFY(!isEditing());
    }

    void editedRuleIsFollowed()
    {
        addRules(u"abc"_s);
        show();
        focusTree(0);
        key(Qt::Key_F2);
        window->click("buttonRuleListDown");
        QVERIFY(isEditing());
        window->editor<RuleWidgetInsertText>(InsertTextKind)->lineEditText->setText(u"new"_s);
        window->selectRule(2);
        window->click("buttonApplyRule");
        QCOMPARE(inserted(), u"bnewc"_s);
        focusTree(1);
        key(Qt::Key_F2);
        window->click("buttonRuleListRemove");
        QVERIFY(!isEditing());
        QCOMPARE(inserted(), u"bc"_s);
        focusTree(1);
        key(Qt::Key_F2);
        window->click("buttonRuleListClear");
        QVERIFY(!isEditing());
    }

    void appliesAnotherKindInThePlaceOfARule()
    {
        addRules(u"ab"_s);
        show();
        focusTree(0);
        key(Qt::Key_F2);
        QVERIFY(window->chooseKind(EnumerateKind));
        window->click("buttonApplyRule");
        QCOMPARE(window->rules().constFirst(), u"Enumerate: Start Number 0 / Position 0 / Start"_s);
    }

    void keysMoveAndDouble()
    {
        window->drop({tree->addFile(u"f"_s)});
        window->click("buttonPreview");
        addRules(u"abc"_s);
        window->ruleTree()->topLevelItem(2)->setCheckState(0, Qt::Unchecked);
        show();
        focusTree(2);
        key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(inserted(), u"a(c)b"_s);
        QCOMPARE(window->currentRule(), 1);
        key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(inserted(), u"a(c)(c)b"_s);
        QCOMPARE(window->currentRule(), 2);
        key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(inserted(), u"a(c)b(c)"_s);
        QCOMPARE(window->rowTexts(), QStringList{u"baf"_s});
        key(Qt::Key_Delete);
        QCOMPARE(inserted(), u"a(c)b"_s);
        // Elsewhere these keys mean nothing to the rules.
        window->files()->setFocus();
        key(Qt::Key_D, Qt::ControlModifier);
        key(Qt::Key_Up, Qt::AltModifier);
        key(Qt::Key_F2);
        QCOMPARE(inserted(), u"a(c)b"_s);
        QVERIFY(!isEditing());
    }

    void keysOnAnEmptyListDoNothing()
    {
        show();
        window->ruleTree()->setFocus();
        key(Qt::Key_F2);
        key(Qt::Key_Return);
        key(Qt::Key_D, Qt::ControlModifier);
        key(Qt::Key_Up, Qt::AltModifier);
        key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(!isEditing());
        QCOMPARE(inserted(), QString());
    }

    void eachChangeIsOneRefresh()
    {
        addRules(u"abc"_s);
        window->click("buttonPreview");
        show();
        const QSignalSpy resets(window->ruleTree()->model(), &QAbstractItemModel::modelReset);
        const auto refreshes = [this, &resets](const auto &gesture) {
            const auto before = resets.count();
            gesture();
            return resets.count() - before;
        };
        focusTree(1);
        QCOMPARE(refreshes([this] { key(Qt::Key_Up, Qt::AltModifier); }), 1);
        QCOMPARE(refreshes([this] { key(Qt::Key_D, Qt::ControlModifier); }), 1);
        QCOMPARE(refreshes([this] { window->click("buttonAddRule"); }), 1);
        QCOMPARE(refreshes([this] { window->click("buttonRuleListRemove"); }), 1);
        key(Qt::Key_F2);
        QCOMPARE(refreshes([this] { window->click("buttonApplyRule"); }), 1);
        QCOMPARE(refreshes([this] { window->click("buttonRuleListClear"); }), 1);
    }
};

QTEST_MAIN(MainWindowRuleEdit)
#include "tst_mainwindow_ruleedit.moc"
