// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "dialogs/dialognotice.h"
#include "dialogstest.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

// Deliberate: the bold tag is closed by the span's end tag.
const auto advice = u"<span style='color:#333'>Please support us</span><br/>"
                    "<a href='http://a.example/contribute'><b>a.example/contribute</span></a><br/>"
                    "<span style='color:#333'>Thank you!</span>"_s;

QPixmap picture()
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::green);
    return pixmap;
}

} // namespace

class TestDialogNotice final : public DialogsTest
{
    Q_OBJECT

private slots:
    void form();
    void slotsInOrder();
    void startsToCount();
    void countsDownAndCloses();
    void checkBoxIsHonouredAfterTheCountDown();
    void closes_data();
    void closes();
    void spinBoxIsForShow();
    void linkOpensThePage();
    void sizeIsFixed();
    void keyboard();
    void followsTheLanguage();
};

void TestDialogNotice::form()
{
    const DialogNotice dialog(nullptr, picture());
    QCOMPARE(dialog.objectName(), u"DialogNotice"_s);
    QCOMPARE(dialog.windowTitle(), u"Advice"_s);
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.font().weight(), int(QFont::Normal));
    auto *outer = find<QVBoxLayout>(dialog, "verticalLayout");
    QCOMPARE(outer, dialog.layout());
    QCOMPARE(outer->sizeConstraint(), QLayout::SetFixedSize);
    auto *grid = find<QGridLayout>(dialog, "gridLayout");
    QCOMPARE(outer->itemAt(0)->layout(), grid);
    QCOMPARE(grid->spacing(), 8);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), find<QLabel>(dialog, "labelPix"));
    QCOMPARE(find<QLabel>(dialog, "labelPix")->pixmap(Qt::ReturnByValue).toImage(), picture().toImage());
    auto *label = find<QLabel>(dialog, "labelAdvice");
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), label);
    QCOMPARE(dialog.labelAdvice(), label);
    QCOMPARE(label->font().weight(), int(QFont::Bold));
    QCOMPARE(label->styleSheet(), u"color:#333"_s);
    QVERIFY(label->wordWrap());
    QVERIFY(label->text().isEmpty());
    auto *row = find<QHBoxLayout>(dialog, "horizontalLayout");
    QCOMPARE(outer->itemAt(1)->layout(), row);
    QCOMPARE(row->spacing(), 4);
    auto *spinBox = find<QSpinBox>(dialog, "spinBox");
    QCOMPARE(row->itemAt(0)->widget(), spinBox);
    QCOMPARE(spinBox->maximumHeight(), 22);
    QCOMPARE(spinBox->focusPolicy(), Qt::NoFocus);
    QCOMPARE(spinBox->styleSheet(), u"background:#f7f7f7;color:#333;border-radius:6px;border:1px solid  #ccc;"
                                    "font-weight:bold"_s);
    QCOMPARE(spinBox->alignment(), Qt::AlignCenter);
    QVERIFY(spinBox->isReadOnly());
    QCOMPARE(spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(row->itemAt(1)->sizeHint(), QSize(16, 20));
    auto *checkBox = find<QCheckBox>(dialog, "checkBox");
    QCOMPARE(row->itemAt(2)->widget(), checkBox);
    QCOMPARE(dialog.checkBox(), checkBox);
    QCOMPARE(checkBox->text(), u"Don't show this message again."_s);
    QCOMPARE(checkBox->layoutDirection(), Qt::LeftToRight);
    QVERIFY(!checkBox->isChecked());
    QCOMPARE(row->itemAt(3)->sizeHint(), QSize(48, 20));
    auto *button = find<QPushButton>(dialog, "buttonOkay");
    QCOMPARE(row->itemAt(4)->widget(), button);
    QCOMPARE(button->text(), u"Close"_s);
    QCOMPARE(button->iconSize(), QSize(24, 24));
    QVERIFY(!button->autoDefault());
    QCOMPARE(tabOrder(dialog), (QStringList{u"buttonOkay"_s, u"checkBox"_s}));
}

void TestDialogNotice::slotsInOrder()
{
    QCOMPARE(slotsOf(DialogNotice::staticMetaObject),
             (QByteArrayList{"updateInterval()", "linkClicked(QString)"}));
}

void TestDialogNotice::startsToCount()
{
    DialogNotice dialog(nullptr, picture());
    QCOMPARE(find<QSpinBox>(dialog, "spinBox")->value(), 15);
    const QList<QTimer *> timers = dialog.findChildren<QTimer *>(Qt::FindDirectChildrenOnly);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst()->interval(), 1000);
    QVERIFY(timers.constFirst()->isActive());
    QVERIFY(!timers.constFirst()->isSingleShot());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(QApplication::focusWidget()->objectName(), u"buttonOkay"_s);
}

void TestDialogNotice::countsDownAndCloses()
{
    DialogNotice dialog(nullptr, picture());
    QList<int> shown;
    connect(find<QSpinBox>(dialog, "spinBox"), &QSpinBox::valueChanged, this,
            [&](int value) { shown.append(value); });
    auto *timer = dialog.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    const QSignalSpy ticks(timer, &QTimer::timeout);
    timer->setInterval(1);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(ticks.count(), 15);
    QCOMPARE(shown, (QList<int>{14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0}));
    QVERIFY(!timer->isActive());
    QVERIFY(!dialog.isVisible());
}

void TestDialogNotice::checkBoxIsHonouredAfterTheCountDown()
{
    DialogNotice dialog(nullptr, picture());
    ModalAnswer answer(
        [&](QDialog *) {
            QTest::mouseClick(dialog.checkBox(), Qt::LeftButton, {},
                              QPoint(8, dialog.checkBox()->height() / 2));
            dialog.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->setInterval(1);
        },
        ModalAnswer::LeaveOpen);
    dialog.exec();
    QVERIFY(answer.isDone());
    QVERIFY(dialog.checkBox()->isChecked());
}

void TestDialogNotice::closes_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("button") << 0;
    QTest::newRow("window") << 1;
    QTest::newRow("Escape") << 2;
    QTest::newRow("blank on the button") << 3;
}

void TestDialogNotice::closes()
{
    QFETCH(int, how);
    DialogNotice dialog(nullptr, picture());
    bool isClosed = false;
    ModalAnswer answer([&](QDialog *) {
        if (how == 0)
            QTest::mouseClick(find<QPushButton>(dialog, "buttonOkay"), Qt::LeftButton);
        else if (how == 1)
            dialog.close();
        else if (QTest::qWaitForWindowActive(&dialog))
            QTest::keyClick(dialog.windowHandle(), how == 2 ? Qt::Key_Escape : Qt::Key_Space);
        isClosed = !dialog.isVisible();
    });
    dialog.exec();
    QVERIFY(answer.isDone());
    QVERIFY(isClosed);
    QVERIFY(!dialog.checkBox()->isChecked());
}

void TestDialogNotice::spinBoxIsForShow()
{
    DialogNotice dialog(nullptr, picture());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *spinBox = find<QSpinBox>(dialog, "spinBox");
    QTest::mouseClick(spinBox, Qt::LeftButton);
    QVERIFY(!spinBox->hasFocus());
    QTest::keyClick(spinBox, Qt::Key_Up);
    QTest::keyClick(spinBox, Qt::Key_PageDown);
    QTest::keyClicks(spinBox, u"7"_s);
    QWheelEvent wheel(QPointF(5, 5), spinBox->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(spinBox, &wheel);
    QCOMPARE(spinBox->value(), 15);
}

void TestDialogNotice::linkOpensThePage()
{
    DialogNotice dialog(nullptr, picture());
    dialog.labelAdvice()->setText(advice);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QWidget *label = dialog.labelAdvice();
    for (int y = 2; y < label->height() && opened->urls.isEmpty(); y += 4)
        QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(20, y));
    QCOMPARE(opened->urls, QList<QUrl>{QUrl(u"http://a.example/contribute"_s)});
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->isActive());
}

void TestDialogNotice::sizeIsFixed()
{
    DialogNotice dialog(nullptr, picture());
    dialog.labelAdvice()->setText(advice);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QSize size = dialog.size();
    dialog.resize(900, 700);
    QCOMPARE(dialog.size(), size);
}

void TestDialogNotice::keyboard()
{
    DialogNotice dialog(nullptr, picture());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(tabbed(dialog), (QStringList{u"buttonOkay"_s, u"checkBox"_s}));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    QVERIFY(dialog.checkBox()->isChecked());
    QVERIFY(dialog.isVisible());
}

void TestDialogNotice::followsTheLanguage()
{
    DialogNotice dialog(nullptr, picture());
    dialog.labelAdvice()->setText(advice);
    dialog.show();
    Localizer::instance()->setLanguage(u"de_DE"_s);
    QTRY_COMPARE(find<QPushButton>(dialog, "buttonOkay")->text(), u"Schließen"_s);
    QCOMPARE(dialog.checkBox()->text(), u"Diese Nachricht nicht mehr anzeigen."_s);
    QCOMPARE(dialog.labelAdvice()->text(), advice); // the caller's
    const DialogNotice later(nullptr, picture());
    QCOMPARE(later.windowTitle(), u"Hinweis"_s);
}

QTEST_MAIN(TestDialogNotice)
#include "tst_dialognotice.moc"
