// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/chain.h"
#include "unit/naming/applied.h"

using namespace Qt::StringLiterals;

namespace {

const Step trim{TrimParameters{0, 4, true}};
const Step insert{InsertTextParameters{u"IMG_"_s, 0, true}};
const Step number{EnumerateParameters{0, 0, 0, true}};

} // namespace

class TestChain final : public QObject
{
    Q_OBJECT

private slots:
    void emptyChainKeepsTheName();
    void stepsApplyInOrder();
    void stepsThatAreOffAreLeftOut();
    void everyStepGetsTheSameRow();
    void everyKindHasItsPlaceInAChain();
    void namesGrowNoLongerThanAnyFileSystemTakes();
};

void TestChain::emptyChainKeepsTheName()
{
    QCOMPARE(newName({}, u"Name.TXT"_s, 3), u"Name.TXT"_s);
}

void TestChain::stepsApplyInOrder()
{
    QCOMPARE(newName({trim, insert}, u"DSC_1.jpg"_s, 0), u"IMG_1.jpg"_s);
    QCOMPARE(newName({insert, trim}, u"DSC_1.jpg"_s, 0), u"DSC_1.jpg"_s);
}

void TestChain::stepsThatAreOffAreLeftOut()
{
    Chain chain{trim, insert};
    chain[0].isOn = false;
    QCOMPARE(newName(chain, u"DSC_1.jpg"_s, 0), u"IMG_DSC_1.jpg"_s);
    chain[1].isOn = false;
    QCOMPARE(newName(chain, u"DSC_1.jpg"_s, 0), u"DSC_1.jpg"_s);
    chain[0].isOn = true;
    QCOMPARE(newName(chain, u"DSC_1.jpg"_s, 0), u"1.jpg"_s);
}

void TestChain::everyStepGetsTheSameRow()
{
    const Step other{EnumerateParameters{0, 1, 0, true}};
    QCOMPARE(newName({number, other, number}, u"."_s, 41), u"414241."_s);
}

void TestChain::everyKindHasItsPlaceInAChain()
{
    const Chain chain{{ReplaceParameters(u"(\\w+) (\\w+)"_s, u"\\2-\\1"_s, true)},
                      {TrimParameters{0, 1, false}},
                      {ChangeCaseParameters{false, true, false, false}},
                      {InsertTextParameters{u"_"_s, 0, true}},
                      {EnumerateParameters{1, 1, 0, true}}};
    QCOMPARE(newName(chain, u"photo one.jpeg"_s, 8), u"09_ONE-PHOTO.JPE"_s);
}

// Two of these would need half a terabyte with the longest text that an editor takes.
void TestChain::namesGrowNoLongerThanAnyFileSystemTakes()
{
    const Step between{ReplaceParameters(u""_s, QString(1000, u'x'), false)};
    const QString name = newName({between, between, insert}, QString(255, u'a'), 0);
    QCOMPARE(name.size(), 8192);
    QVERIFY(name.startsWith("IMG_xxx"_L1));
    QCOMPARE(newName({insert}, QString(8000, u'a'), 0), "IMG_"_L1 + QString(8000, u'a'));
}

QTEST_GUILESS_MAIN(TestChain)
#include "tst_chain.moc"
