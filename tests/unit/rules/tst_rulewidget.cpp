// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/rulewidget.h"
#include "unit/support/editors.h"

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

QTEST_MAIN(TestRuleWidget)
#include "tst_rulewidget.moc"
