// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "unit/naming/applied.h"

using namespace Qt::StringLiterals;

namespace {

const QList<Parameters> oneOfEach{ReplaceParameters(), TrimParameters(), ChangeCaseParameters(),
                                  InsertTextParameters(), EnumerateParameters()};

} // namespace

/// The kinds of rules, and what goes by their order.
class TestKind final : public QObject
{
    Q_OBJECT

private slots:
    void parametersAreInTheOrderOfTheKinds();
    void idsStayWhatTheyAre();
    void unknownIdsHaveNoKind_data();
    void unknownIdsHaveNoKind();
    void namesFollowTheLanguage();
    void directionNamesFollowTheLanguage();
    void rangesAreThoseOfTheEditors();
};

void TestKind::parametersAreInTheOrderOfTheKinds()
{
    QList<Kind> kinds;
    for (const Parameters &parameters : oneOfEach)
        kinds.append(kindOf(parameters));
    QCOMPARE(kinds, QList<Kind>(allKinds.begin(), allKinds.end()));
    QCOMPARE(kinds,
             (QList<Kind>{Kind::Replace, Kind::Trim, Kind::ChangeCase, Kind::InsertText, Kind::Enumerate}));
}

// Files and scripts of today must mean the same tomorrow.
void TestKind::idsStayWhatTheyAre()
{
    QStringList ids;
    for (const Kind kind : allKinds) {
        ids.append(kindId(kind));
        QVERIFY(kindFromId(kindId(kind)) == kind);
    }
    QCOMPARE(ids, (QStringList{u"replace"_s, u"trim"_s, u"case"_s, u"insert"_s, u"number"_s}));
    const BracketTranslator translator;
    QCOMPARE(kindId(Kind::Trim), u"trim"_s);
}

void TestKind::unknownIdsHaveNoKind_data()
{
    QTest::addColumn<QString>("id");
    for (const char *id : {"", "Replace", "TRIM", "insert ", "insertText", "0"})
        QTest::newRow(id) << QString::fromLatin1(id);
}

void TestKind::unknownIdsHaveNoKind()
{
    QFETCH(QString, id);
    QVERIFY(!kindFromId(id));
}

void TestKind::namesFollowTheLanguage()
{
    QStringList names;
    for (const Kind kind : allKinds)
        names.append(kindName(kind));
    QCOMPARE(names,
             (QStringList{u"Replace"_s, u"Trim"_s, u"Change Case"_s, u"Insert Text"_s, u"Enumerate"_s}));
    const BracketTranslator translator;
    QCOMPARE(kindName(Kind::ChangeCase), u"[Change Case]"_s);
}

void TestKind::directionNamesFollowTheLanguage()
{
    QCOMPARE(directionName(true), u"Start"_s);
    QCOMPARE(directionName(false), u"End"_s);
    const BracketTranslator translator;
    QCOMPARE(directionName(true), u"[Start]"_s);
    QCOMPARE(directionName(false), u"[End]"_s);
}

void TestKind::rangesAreThoseOfTheEditors()
{
    const auto numbers = [](Range range) {
        return std::pair(range.least, range.most);
    };
    QCOMPARE(numbers(positionRange), std::pair(0, 512));
    QCOMPARE(numbers(lengthRange), std::pair(1, 512));
    QCOMPARE(numbers(startNumberRange), std::pair(0, 512));
    QCOMPARE(numbers(leadingZerosRange), std::pair(0, 9));
}

QTEST_GUILESS_MAIN(TestKind)
#include "tst_kind.moc"
