// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fileidentity.h"
#include "naming/rulesetfolder.h"
#include "support/temptree.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RuleSet setOf(const QString &name, const QString &text = u"x"_s)
{
    return {name, {{{InsertTextParameters{text, 0, true}, true}, {}}}, {}};
}

QString textOf(const QString &path)
{
    QString error;
    const auto set = readRuleSet(path, &error);
    return set ? std::get<InsertTextParameters>(set->rules.at(0).step.parameters).text : error;
}

} // namespace

class TestRuleSetFolder final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TempTree> tree;
    std::unique_ptr<RuleSetFolder> folder;

    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (const RuleSetFolder::Entry &entry : folder->list())
            result.append(entry.name);
        return result;
    }
    [[nodiscard]] RuleSetFolder::Entry entry(const QString &name) const { return {name, folder->find(name)}; }

private slots:
    void init()
    {
        tree = std::make_unique<TempTree>();
        folder = std::make_unique<RuleSetFolder>(tree->path(u"rulesets"_s));
    }

    void holdsItsOwnFilesAlone()
    {
        QVERIFY(!folder->holds(tree->path(u"rulesets/A.orvanto-rules"_s)));
        QCOMPARE(folder->save(setOf(u"A"_s)), QString());
        QVERIFY(folder->holds(folder->find(u"A"_s)));
        QVERIFY(folder->holds(tree->path(u"rulesets/../rulesets/A.orvanto-rules"_s)));
        QVERIFY(!folder->holds(tree->addFile(u"A.orvanto-rules"_s)));
        QVERIFY(!folder->holds(tree->addFile(u"rulesets/in/A.orvanto-rules"_s)));
        QVERIFY(!folder->holds(tree->addFile(u"rulesets/A.txt"_s)));
    }

    void folderIsMadeWhenFirstSaved()
    {
        QCOMPARE(names(), QStringList());
        QVERIFY(!QFileInfo::exists(tree->path(u"rulesets"_s)));
        QCOMPARE(folder->save(setOf(u"Photos"_s)), QString());
        QCOMPARE(entriesOf(tree->path(u"rulesets"_s)), QStringList{u"Photos.orvanto-rules"_s});
        QCOMPARE(names(), QStringList{u"Photos"_s});
    }

    void savingAgainReplacesTheSetOfThatName()
    {
        QCOMPARE(folder->save(setOf(u"A"_s, u"old"_s)), QString());
        QCOMPARE(folder->save(setOf(u"B"_s, u"b"_s)), QString());
        QCOMPARE(folder->save(setOf(u"A"_s, u"new"_s)), QString());
        QCOMPARE(names(), QStringList({u"A"_s, u"B"_s}));
        QCOMPARE(textOf(folder->find(u"A"_s)), u"new"_s);
        QCOMPARE(textOf(folder->find(u"B"_s)), u"b"_s);
    }

    // A person may name the file otherwise: the set's own name counts.
    void setIsKnownByItsNameWhateverItsFileIsCalled()
    {
        QCOMPARE(folder->save(setOf(u"A"_s, u"old"_s)), QString());
        QVERIFY(QFile::rename(tree->path(u"rulesets/A.orvanto-rules"_s),
                              tree->path(u"rulesets/z.orvanto-rules"_s)));
        QCOMPARE(names(), QStringList{u"A"_s});
        QCOMPARE(folder->save(setOf(u"A"_s, u"new"_s)), QString());
        QCOMPARE(entriesOf(tree->path(u"rulesets"_s)), QStringList{u"z.orvanto-rules"_s});
    }

    void everyNameHasAFileOfItsOwn_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::newRow("separators") << u"Title / Artist \\ : *?\"<>|"_s << u"Title _ Artist _ _ ______"_s;
        QTest::newRow("out of the folder") << u"../../a"_s << u"______a"_s;
        QTest::newRow("hidden") << u".a"_s << u"_a"_s;
        QTest::newRow("ends in a dot") << u"a."_s << u"a_"_s;
        QTest::newRow("a device") << u"con"_s << u"_con"_s;
        QTest::newRow("a device with a number") << u"COM1.x"_s << u"_COM1.x"_s;
        QTest::newRow("no device") << u"console"_s << u"console"_s;
        QTest::newRow("long") << QString(100, u'日') << QString(70, u'日');
        QTest::newRow("long, a character cut in two") << QString(69, u'a') + u"🎉"_s << QString(69, u'a');
        QTest::newRow("as it is") << u"Größe 日本 🎉"_s << u"Größe 日本 🎉"_s;
    }

    void everyNameHasAFileOfItsOwn()
    {
        QFETCH(QString, name);
        QFETCH(QString, file);
        QCOMPARE(folder->save(setOf(name)), QString());
        QCOMPARE(entriesOf(tree->path(u"rulesets"_s)), QStringList{file + ".orvanto-rules"_L1});
        QCOMPARE(entriesOf(tree->path()), QStringList{u"rulesets"_s});
        QCOMPARE(names(), QStringList{name});
    }

    void namesThatWouldShareAFileDoNot()
    {
        QCOMPARE(folder->save(setOf(u"a/b"_s, u"1"_s)), QString());
        QCOMPARE(folder->save(setOf(u"a:b"_s, u"2"_s)), QString());
        QCOMPARE(textOf(folder->find(u"a/b"_s)), u"1"_s);
        QCOMPARE(textOf(folder->find(u"a:b"_s)), u"2"_s);
        QCOMPARE(entriesOf(tree->path(u"rulesets"_s)).size(), 2);
    }

    void addingReplacesNothing()
    {
        QCOMPARE(folder->add(setOf(u"A"_s, u"1"_s)), QString());
        QCOMPARE(folder->add(setOf(u"A"_s, u"2"_s)), QString());
        QCOMPARE(folder->add(setOf(u"A"_s, u"3"_s)), QString());
        QCOMPARE(names(), QStringList({u"A"_s, u"A 2"_s, u"A 3"_s}));
        QCOMPARE(textOf(folder->find(u"A"_s)), u"1"_s);
        const QString longest(mostCharactersOfSetName, u'x');
        QCOMPARE(folder->add(setOf(longest)), QString());
        QCOMPARE(folder->add(setOf(longest)), QString());
        QVERIFY(names().contains(longest.chopped(2) + " 2"_L1));
    }

    void renaming()
    {
        QCOMPARE(folder->save(setOf(u"A"_s, u"1"_s)), QString());
        QCOMPARE(folder->save(setOf(u"B"_s, u"2"_s)), QString());
        QCOMPARE(folder->rename(entry(u"A"_s), u"B"_s), u"another rule set has this name"_s);
        QCOMPARE(folder->rename(entry(u"A"_s), u" "_s),
                 u"\"name\": must be a name, without blanks at its ends"_s);
        QCOMPARE(folder->rename(entry(u"A"_s), u"A"_s), QString());
        QCOMPARE(names(), QStringList({u"A"_s, u"B"_s}));
        QCOMPARE(folder->rename(entry(u"A"_s), u"C"_s), QString());
        QCOMPARE(names(), QStringList({u"B"_s, u"C"_s}));
        QCOMPARE(textOf(folder->find(u"C"_s)), u"1"_s);
        QVERIFY(!QFileInfo::exists(tree->path(u"rulesets/A.orvanto-rules"_s)));
    }

    void removing()
    {
        QCOMPARE(folder->save(setOf(u"A"_s)), QString());
        const RuleSetFolder::Entry gone = entry(u"A"_s);
        QVERIFY(folder->remove(gone));
        QCOMPARE(names(), QStringList());
        QVERIFY(!folder->remove(gone));
    }

    void brokenFilesAreListedAndLeftAlone()
    {
        tree->addFile(u"rulesets/broken.orvanto-rules"_s, "{");
        tree->addFile(u"rulesets/other.txt"_s, "{");
        QCOMPARE(names(), QStringList{u"broken"_s});
        QCOMPARE(textOf(folder->find(u"broken"_s)), u"line 1 is no JSON"_s);
        // Nothing goes through it: the person who wrote it may mend it.
        QVERIFY(!folder->rename(entry(u"broken"_s), u"B"_s).isEmpty());
        QVERIFY(!folder->save({u" "_s, {}, {}}).isEmpty());
        QCOMPARE(readFile(tree->path(u"rulesets/broken.orvanto-rules"_s)), QByteArray("{"));
        // A set of that name gets another file.
        QCOMPARE(folder->add(setOf(u"broken"_s)), QString());
        QCOMPARE(readFile(tree->path(u"rulesets/broken.orvanto-rules"_s)), QByteArray("{"));
    }

    void unreadableFilesAreTold()
    {
        QString error;
        QVERIFY(!readRuleSet(tree->path(u"none"_s), &error));
        QVERIFY(!error.isEmpty());
        error.clear();
        QVERIFY(!readRuleSet(tree->addFolder(u"folder.orvanto-rules"_s), &error));
        QCOMPARE(error, u"is no file"_s);
        // Windows has none.
        const QString pipe = tree->path(u"pipe.orvanto-rules"_s);
        if (makePipe(pipe)) {
            QVERIFY(!readRuleSet(pipe, &error));
            QCOMPARE(error, u"is no file"_s);
        }
    }

    void folderThatCannotBeMadeIsTold()
    {
        tree->addFile(u"rulesets"_s, "a file");
        QVERIFY(!folder->save(setOf(u"A"_s)).isEmpty());
        QCOMPARE(readFile(tree->path(u"rulesets"_s)), QByteArray("a file"));
        QCOMPARE(entriesOf(tree->path()), QStringList{u"rulesets"_s});
    }
};

QTEST_GUILESS_MAIN(TestRuleSetFolder)
#include "tst_rulesetfolder.moc"
