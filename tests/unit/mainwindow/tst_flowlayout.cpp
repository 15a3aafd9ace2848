// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/flowlayout.h"

#include <QHBoxLayout>
#include <QTest>
#include <QWidget>

class TestFlowLayout final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { parent.reset(); }

    void oneLineWhereThereIsRoom();
    void furtherLinesWhereThereIsNot();
    void widestItemIsTheLeastWidth();
    void hiddenWidgetsAndSpacersTakeNoRoom();
    void layoutsAreItems();
    void itemsAreTakenInOrder();

private:
    std::unique_ptr<QWidget> parent;
    FlowLayout *layout = nullptr;
    QList<QWidget *> boxes;
};

void TestFlowLayout::init()
{
    parent = std::make_unique<QWidget>();
    layout = new FlowLayout(parent.get(), 4);
    layout->setContentsMargins(1, 2, 3, 5);
    boxes.clear();
    for (const QSize size : {QSize(30, 10), QSize(40, 20), QSize(20, 10)}) {
        auto *box = new QWidget(parent.get());
        box->setFixedSize(size);
        layout->addWidget(box);
        boxes.append(box);
    }
}

void TestFlowLayout::oneLineWhereThereIsRoom()
{
    QCOMPARE(layout->sizeHint(), QSize(1 + 30 + 4 + 40 + 4 + 20 + 3, 2 + 20 + 5));
    layout->setGeometry(QRect(QPoint(100, 200), layout->sizeHint()));
    QCOMPARE(boxes.at(0)->pos(), QPoint(101, 202));
    QCOMPARE(boxes.at(1)->pos(), QPoint(135, 202));
    QCOMPARE(boxes.at(2)->pos(), QPoint(179, 202));
    QCOMPARE(layout->heightForWidth(layout->sizeHint().width()), layout->sizeHint().height());
}

void TestFlowLayout::furtherLinesWhereThereIsNot()
{
    const int narrow = layout->sizeHint().width() - 1;
    QVERIFY(layout->hasHeightForWidth());
    QCOMPARE(layout->heightForWidth(narrow), 2 + 20 + 4 + 10 + 5);
    layout->setGeometry(QRect(0, 0, narrow, 100));
    QCOMPARE(boxes.at(1)->pos(), QPoint(35, 2));
    QCOMPARE(boxes.at(2)->pos(), QPoint(1, 2 + 20 + 4));
    QCOMPARE(layout->heightForWidth(50), 2 + 10 + 4 + 20 + 4 + 10 + 5);
}

void TestFlowLayout::widestItemIsTheLeastWidth()
{
    QCOMPARE(layout->minimumSize(), QSize(1 + 40 + 3, 2 + 20 + 5));
    QCOMPARE(layout->expandingDirections(), Qt::Orientations());
}

void TestFlowLayout::hiddenWidgetsAndSpacersTakeNoRoom()
{
    boxes.at(0)->hide();
    layout->addItem(new QSpacerItem(40, 40));
    QCOMPARE(layout->sizeHint(), QSize(1 + 40 + 4 + 20 + 3, 2 + 20 + 5));
    boxes.at(1)->hide();
    QCOMPARE(layout->minimumSize(), QSize(1 + 20 + 3, 2 + 10 + 5));
}

void TestFlowLayout::layoutsAreItems()
{
    auto *inner = new QHBoxLayout;
    inner->setSpacing(0);
    inner->addWidget(boxes.at(2));
    auto *box = new QWidget;
    box->setFixedSize(7, 7);
    inner->addWidget(box);
    layout->addItem(inner);
    QCOMPARE(box->parentWidget(), parent.get());
    layout->setGeometry(QRect(0, 0, 500, 100));
    QCOMPARE(box->x(), 1 + 30 + 4 + 40 + 4 + 20);
    const std::unique_ptr<QLayoutItem> taken(layout->takeAt(layout->count() - 1));
    QCOMPARE(taken->layout(), inner);
    QCOMPARE(inner->parent(), nullptr);
}

void TestFlowLayout::itemsAreTakenInOrder()
{
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(1)->widget(), boxes.at(1));
    QCOMPARE(layout->itemAt(3), nullptr);
    QCOMPARE(layout->itemAt(-1), nullptr);
    const std::unique_ptr<QLayoutItem> taken(layout->takeAt(1));
    QCOMPARE(taken->widget(), boxes.at(1));
    QCOMPARE(layout->takeAt(2), nullptr);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(1)->widget(), boxes.at(2));
}

QTEST_MAIN(TestFlowLayout)
#include "tst_flowlayout.moc"
