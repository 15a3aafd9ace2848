// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/faketranslator.h"

#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array withLabels{ReplaceKind, TrimKind, InsertTextKind, EnumerateKind};

/// Longer labels need more room.
QString longer(QLatin1StringView context, const QString &text)
{
    return context == "Rules"_L1 ? text + " mehr"_L1 : QString();
}

} // namespace

/// Only of a page that is shown late.
QString longerFrom(QLatin1StringView context, const QString &text)
{
    return context == "Rules"_L1 && text.startsWith("Start"_L1) ? u"A label that is longer than all others"_s
                                                                : QString();
}

/// What the window adds to the editors of the rules, and to the texts of the list.
class MainWindowRuleEditors : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    void show() const { QVERIFY(window->showActive()); }
    /// Where the first field of a kind's editor begins.
    [[nodiscard]] int column(RuleKind kind) const
    {
        const QWidget *editor = window->chooseKind(kind);
        const QWidget *field = editor->findChild<QSpinBox *>();
        if (!field)
            field = editor->findChild<QLineEdit *>();
        return field->mapTo(editor, QPoint(0, 0)).x();
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

    void cutOffPropertiesHaveTheirWholeTextAsAToolTip()
    {
        const QString text(200, u'x');
        window->addInsert(text);
        window->addInsert(u"a"_s);
        show();
        const auto tipAt = [this](int row) {
            QTreeWidget *rules = window->ruleTree();
            const QPoint place = rules->visualRect(rules->model()->index(row, 1)).topLeft() + QPoint(5, 5);
            QHelpEvent event(QEvent::ToolTip, place, rules->viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(rules->viewport(), &event);
        };
        tipAt(0);
        QVERIFY(QToolTip::text().contains(text));
        tipAt(1);
        QTRY_COMPARE(QToolTip::text(), QString());
    }

    void fieldsBeginAtOneColumn()
    {
        show();
        for (const RuleKind kind : withLabels)
            QTRY_COMPARE(column(kind), column(ReplaceKind));
        const int first = column(ReplaceKind);
        const FakeTranslator translator(longer);
        QVERIFY(window->chooseKind(TrimKind));
        QTRY_VERIFY(column(TrimKind) > first);
        for (const RuleKind kind : withLabels)
            QTRY_COMPARE(column(kind), column(TrimKind));
    }

    void pagesThatWereNotShownYetCountForTheColumn()
    {
        const FakeTranslator translator(longerFrom);
        show();
        const int width =
            window->chooseKind(ReplaceKind)->fontMetrics().horizontalAdvance(u"longer than all others"_s);
        QTRY_VERIFY(column(ReplaceKind) > width);
    }

    void fieldsHaveOneSizeOfFont()
    {
        show();
        for (const RuleKind kind : withLabels) {
            const auto fields = window->chooseKind(kind)->findChildren<QLineEdit *>();
            QVERIFY(!fields.isEmpty());
            for (const QLineEdit *field : fields)
                QCOMPARE(field->font().pointSizeF(),
                         window->child<QLineEdit>("lineEditFileFilter")->font().pointSizeF());
        }
    }

    void tabGoesFromTheKindThroughItsFields()
    {
        QVERIFY(window->chooseKind(InsertTextKind));
        show();
        window->child<QComboBox>("comboBoxRules")->setFocus();
        QStringList names;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            names.append(QApplication::focusWidget()->objectName());
        }
        QCOMPARE(names, QStringList({u"lineEditText"_s, u"spinBoxPosition"_s, u"radioButtonStart"_s,
                                     u"buttonAddRule"_s, u"buttonRuleSets"_s, u"treeWidgetRules"_s}));
    }

    void exampleShowsWhatTheEditorsRuleWouldMake()
    {
        const auto *label = window->child<QLabel>("labelRuleExample");
        show();
        QCOMPARE(label->text(), QString());
        window->drop({tree->addFile(u"IMG_0001.JPG"_s), tree->addFile(u"b"_s)});
        window->files()->setCurrentRow(0);
        auto *form = window->editor<RuleWidgetReplace>(ReplaceKind);
        form->lineEditReplaceWhat->setText(u"IMG_"_s);
        form->lineEditReplaceWith->setText(u"Holiday "_s);
        QTRY_COMPARE(label->text(), u"IMG_0001.JPG → Holiday 0001.JPG"_s);
        form->toolButtonRegExp->setChecked(true);
        form->lineEditReplaceWhat->setText(u"\\d+"_s);
        QTRY_COMPARE(label->text(), u"IMG_0001.JPG → IMG_Holiday .JPG"_s);
        window->files()->setCurrentRow(1);
        auto *numbers = window->editor<RuleWidgetEnumerate>(EnumerateKind);
        numbers->spinBoxStartNumber->setValue(7);
        QTRY_COMPARE(label->text(), u"b → 8b"_s);
        // It never asks for room.
        QCOMPARE(label->minimumSizeHint().width(), 0);
        // The row's name is the one that it shows.
        window->click("buttonAddRule");
        window->click("buttonPreview");
        QTRY_COMPARE(label->text(), u"8b → 88b"_s);
        // Of a rule that is edited, the rules above it count, and they alone.
        window->addInsert(u"x"_s);
        window->selectRule(1);
        window->ruleTree()->setFocus();
        QTest::keyClick(window->ruleTree(), Qt::Key_F2);
        QTRY_COMPARE(label->text(), u"8b → x8b"_s);
        QTest::keyClick(window->ruleTree(), Qt::Key_Escape);
        QTRY_COMPARE(label->text(), u"x8b → xx8b"_s);
        window->files()->clear();
        QTRY_COMPARE(label->text(), QString());
    }
};

QTEST_MAIN(MainWindowRuleEditors)
#include "tst_mainwindow_ruleeditors.moc"
