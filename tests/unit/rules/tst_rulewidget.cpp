// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/directionbox.h"
#include "rules/rulewidget.h"
#include "unit/support/editors.h"

#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

class CountingWidget final : public RuleWidget
{
public:
    using RuleWidget::RuleWidget;
    void retranslateUi() override { ++retranslations; }
    void paintEvent(QPaintEvent *) override { ++paintings; }

    int retranslations = 0;
    int paintings = 0;
};

} // namespace

class TestRuleWidget final : public QObject
{
    Q_OBJECT

private slots:
    void isAPlainChildOfItsParent();
    void onlyALanguageChangeRetranslates();
    void languageChangeIsAcceptedAndGoesNoFurther();
    void otherChangesGoToTheWidget();
    void spinBoxesStartAtTheirMinimum();
    void directionNamesFollowTheLanguage();
};

void TestRuleWidget::isAPlainChildOfItsParent()
{
    QWidget parent;
    const CountingWidget widget(&parent);
    QCOMPARE(widget.parentWidget(), &parent);
    QCOMPARE(widget.windowFlags(), QWidget(&parent).windowFlags());
    QCOMPARE(widget.retranslations, 0);
}

void TestRuleWidget::onlyALanguageChangeRetranslates()
{
    CountingWidget widget(nullptr);
    for (const QEvent::Type type :
         {QEvent::LocaleChange, QEvent::FontChange, QEvent::StyleChange, QEvent::PaletteChange,
          QEvent::EnabledChange, QEvent::WindowTitleChange}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&widget, &event);
    }
    QCOMPARE(widget.retranslations, 0);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&widget, &event);
    QCOMPARE(widget.retranslations, 1);
}

void TestRuleWidget::languageChangeIsAcceptedAndGoesNoFurther()
{
    CountingWidget widget(nullptr);
    verifyAcceptsLanguageChange(widget);
}

void TestRuleWidget::otherChangesGoToTheWidget()
{
    CountingWidget widget(nullptr);
    widget.resize(50, 50);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QTRY_VERIFY(widget.paintings > 0);
    QCoreApplication::processEvents();
    const int before = widget.paintings;
    QEvent event(QEvent::PaletteChange);
    QCoreApplication::sendEvent(&widget, &event);
    QTRY_VERIFY(widget.paintings > before);
}

void TestRuleWidget::spinBoxesStartAtTheirMinimum()
{
    QWidget parent;
    const QSpinBox *spinBox = createSpinBox(&parent, 3, 12);
    QCOMPARE(spinBox->parentWidget(), &parent);
    QCOMPARE(spinBox->minimum(), 3);
    QCOMPARE(spinBox->maximum(), 12);
    QCOMPARE(spinBox->value(), 3);
}

void TestRuleWidget::directionNamesFollowTheLanguage()
{
    QCOMPARE(directionName(true), u"Start"_s);
    QCOMPARE(directionName(false), u"End"_s);
    const BracketTranslator translator;
    QCOMPARE(directionName(true), u"[Start]"_s);
    QCOMPARE(directionName(false), u"[End]"_s);
}

QTEST_MAIN(TestRuleWidget)
#include "tst_rulewidget.moc"
