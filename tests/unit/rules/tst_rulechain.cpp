// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulechain.h"
#include "rules/rulewidget.h"
#include "unit/support/editors.h"

#include <QStackedWidget>

#include <vector>

using namespace Qt::StringLiterals;

class TestRuleChain final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void factoriesComeInTheOrderOfTheCatalogue();
    void factoriesMakeANewRuleEachTime();
    void everyKindMakesItsOwnParameters_data();
    void everyKindMakesItsOwnParameters();
    void editorOfAnotherKindMakesNoRecord();
    void editorsBecomeThePagesOfAStack();
    void rulesApplyInOrder();
    void recordWithoutARuleEmptiesTheName();
    void recordWithoutARuleHasNoTexts();
    void everyRuleOfAChainGetsTheSameRow();
    void namesGrowNoLongerThanAnyFileSystemTakes();
    void recordsAreUnaffectedByLaterEdits();

private:
    [[nodiscard]] QString chain(const std::vector<RuleData> &records, QString name, int row = 0) const
    {
        for (const RuleData &data : records)
            name = applyRuleChain(&data, name, row);
        return name;
    }

    std::vector<std::unique_ptr<Rule>> rules;
};

void TestRuleChain::initTestCase()
{
    const QList<RuleFactory *> factories = createRuleFactories();
    for (const RuleFactory *factory : factories)
        rules.emplace_back(factory->create());
    qDeleteAll(factories);
    QCOMPARE(rules.size(), 5U);
}

void TestRuleChain::factoriesComeInTheOrderOfTheCatalogue()
{
    QStringList names;
    for (const auto &rule : rules)
        names.append(rule->name());
    QCOMPARE(names,
             (QStringList{u"Replace"_s, u"Trim"_s, u"Change Case"_s, u"Insert Text"_s, u"Enumerate"_s}));
}

void TestRuleChain::factoriesMakeANewRuleEachTime()
{
    const QList<RuleFactory *> factories = createRuleFactories();
    for (const RuleFactory *factory : factories) {
        const std::unique_ptr<Rule> first(factory->create());
        const std::unique_ptr<Rule> second(factory->create());
        QVERIFY(first != second);
        QCOMPARE(first->name(), second->name());
    }
    qDeleteAll(factories);
}

void TestRuleChain::everyKindMakesItsOwnParameters_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("description");

    QTest::newRow("Replace") << 0 << u"'' - ''"_s;
    QTest::newRow("Trim") << 1 << u"0 - 1 / Start"_s;
    QTest::newRow("Change Case") << 2 << u"Uppercase letters"_s;
    QTest::newRow("Insert Text") << 3 << u"'' / Position 0 / Start"_s;
    QTest::newRow("Enumerate") << 4 << u"Start Number 0 / Position 0 / Start"_s;
}

void TestRuleChain::everyKindMakesItsOwnParameters()
{
    QFETCH(int, key);
    const Rule &rule = *rules.at(static_cast<size_t>(key));
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const std::unique_ptr<RuleData> data(rule.createData(editor.get()));
    QVERIFY(data);
    QCOMPARE(data->rule, &rule);
    QCOMPARE(data->parameters.index(), static_cast<size_t>(key));
    QCOMPARE(ruleName(data.get()), QString::fromLatin1(QTest::currentDataTag()));
    QTEST(ruleDescription(data.get()), "description");
}

void TestRuleChain::editorOfAnotherKindMakesNoRecord()
{
    for (const auto &rule : rules) {
        for (const auto &other : rules) {
            const std::unique_ptr<QWidget> editor(other->createEditor(nullptr));
            const std::unique_ptr<RuleData> data(rule->createData(editor.get()));
            QCOMPARE(data != nullptr, rule == other);
        }
    }
}

void TestRuleChain::editorsBecomeThePagesOfAStack()
{
    QStackedWidget stack;
    int key = 0;
    for (const auto &rule : rules) {
        QWidget *editor = rule->createEditor(&stack);
        QVERIFY(qobject_cast<RuleWidget *>(editor));
        QCOMPARE(editor->parentWidget(), &stack);
        QCOMPARE(stack.addWidget(editor), key++);
    }
    QCOMPARE(stack.count(), 5);
}

void TestRuleChain::rulesApplyInOrder()
{
    const RuleData trim{rules.at(1).get(), TrimParameters{0, 4, true}};
    const RuleData insert{rules.at(3).get(), InsertTextParameters{u"IMG_"_s, 0, true}};
    QCOMPARE(chain({trim, insert}, u"DSC_1.jpg"_s), u"IMG_1.jpg"_s);
    QCOMPARE(chain({insert, trim}, u"DSC_1.jpg"_s), u"DSC_1.jpg"_s);
}

// Deliberate: the name is then lost for the rest of the chain.
void TestRuleChain::recordWithoutARuleEmptiesTheName()
{
    const RuleData none;
    QCOMPARE(none.rule, nullptr);
    QCOMPARE(applyRuleChain(&none, u"name"_s, 3), QString());
    const RuleData insert{rules.at(3).get(), InsertTextParameters{u"x"_s, 0, true}};
    QCOMPARE(chain({none, insert}, u"name"_s), u"x"_s);
    QCOMPARE(chain({insert, none}, u"name"_s), QString());
}

void TestRuleChain::recordWithoutARuleHasNoTexts()
{
    const RuleData none;
    QCOMPARE(ruleName(&none), QString());
    QCOMPARE(ruleDescription(&none), QString());
}

void TestRuleChain::everyRuleOfAChainGetsTheSameRow()
{
    const RuleData first{rules.at(4).get(), EnumerateParameters{0, 0, 0, true}};
    const RuleData second{rules.at(4).get(), EnumerateParameters{0, 1, 0, true}};
    QCOMPARE(chain({first, second, first}, u"."_s, 41), u"414241."_s);
}

// The longest text that an editor takes would need half a terabyte without the bound.
void TestRuleChain::namesGrowNoLongerThanAnyFileSystemTakes()
{
    const RuleData between{rules.at(0).get(), ReplaceParameters{u""_s, QString(1000, u'x'), false}};
    const RuleData insert{rules.at(3).get(), InsertTextParameters{u"start"_s, 0, true}};
    const QString name = chain({between, between, insert}, QString(255, u'a'));
    QCOMPARE(name.size(), 8192);
    QVERIFY(name.startsWith("startxxx"_L1));
    QCOMPARE(chain({insert}, QString(8000, u'a')), "start"_L1 + QString(8000, u'a'));
}

void TestRuleChain::recordsAreUnaffectedByLaterEdits()
{
    const Rule &rule = *rules.at(1);
    const std::unique_ptr<QWidget> editor(rule.createEditor(nullptr));
    const std::unique_ptr<RuleData> before(rule.createData(editor.get()));
    for (QObject *child : editor->children())
        child->setProperty("value", 5);
    const std::unique_ptr<RuleData> after(rule.createData(editor.get()));
    QCOMPARE(ruleDescription(before.get()), u"0 - 1 / Start"_s);
    QCOMPARE(ruleDescription(after.get()), u"5 - 5 / Start"_s);
}

QTEST_MAIN(TestRuleChain)
#include "tst_rulechain.moc"
