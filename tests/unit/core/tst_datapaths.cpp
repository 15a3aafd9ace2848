// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/applog.h"
#include "core/datapaths.h"
#include "core/settingsstore.h"
#include "support/temptree.h"

#include <QCoreApplication>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// The markers lie beside this test's own executable, which no other test shares a folder with.
class TestDataPaths final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void installedOneIsNamedAfterOrganisationAndApplication();
    void markersMakeItPortable_data();
    void markersMakeItPortable();
    void choosingMakesNothing();
    void parentsAreMade();
    void portableOneMustBeWritable();
    void itIsTheCurrentFolderUnlessSaidOtherwise();
    void settingsAndLogGoWhereItIs();

private:
    std::unique_ptr<TestFolder> folder;
    QString program;
};

void TestDataPaths::init()
{
    QCoreApplication::setOrganizationName(u"Kavrondel"_s);
    QCoreApplication::setApplicationName(u"Orvanto"_s);
    program = QCoreApplication::applicationDirPath();
    folder = std::make_unique<TestFolder>();
}

void TestDataPaths::cleanup()
{
    useDataDirectory({});
    for (const QString &name : {u"portable"_s, u"portable.txt"_s, u"writable"_s}) {
        QFile::remove(program + u'/' + name);
        QDir().rmdir(program + u'/' + name);
    }
    folder.reset();
}

void TestDataPaths::installedOneIsNamedAfterOrganisationAndApplication()
{
    const DataDirectory chosen = chooseDataDirectory(u"/home/u/.local/share"_s);
    QCOMPARE(chosen.path, u"/home/u/.local/share/Kavrondel/Orvanto"_s);
    QVERIFY(!chosen.isPortable);
    QCOMPARE(chooseDataDirectory({}).path, u"/Kavrondel/Orvanto"_s);
}

void TestDataPaths::markersMakeItPortable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<bool>("isPortable");

    QTest::newRow("file") << u"portable"_s << false << true;
    QTest::newRow("folder") << u"portable"_s << true << true;
    QTest::newRow("text file") << u"portable.txt"_s << false << true;
    QTest::newRow("another name") << u"writable"_s << false << false;
}

void TestDataPaths::markersMakeItPortable()
{
    QFETCH(QString, name);
    QFETCH(bool, isFolder);
    const QString marker = program + u'/' + name;
    QVERIFY(isFolder ? QDir().mkdir(marker) : writeFile(marker, {}));
    const DataDirectory chosen = chooseDataDirectory(folder->path());
    QTEST(chosen.isPortable, "isPortable");
    QCOMPARE(chosen.path, chosen.isPortable ? program : folder->path(u"Kavrondel/Orvanto"_s));
}

void TestDataPaths::choosingMakesNothing()
{
    const QString before = QDir::currentPath();
    static_cast<void>(chooseDataDirectory(folder->path(u"data"_s)));
    QCOMPARE(entriesOf(folder->path()), QStringList());
    QCOMPARE(QDir::currentPath(), before);
    QCOMPARE(dataDirectory(), before);
}

void TestDataPaths::parentsAreMade()
{
    const DataDirectory chosen = chooseDataDirectory(folder->path(u"some/data"_s));
    QVERIFY(makeDataDirectory(chosen));
    QVERIFY(QFileInfo(chosen.path).isDir());
    QVERIFY(makeDataDirectory(chosen));
    // Whether an installed one could be made shows when it is used.
    QVERIFY(writeFile(u"file"_s, {}));
    QVERIFY(makeDataDirectory({folder->path(u"file/data"_s)}));
}

void TestDataPaths::portableOneMustBeWritable()
{
    const QStringList before = entriesOf(program);
    QVERIFY(makeDataDirectory({program, true}));
    QCOMPARE(entriesOf(program), before);
    // A folder of the probe's name refuses root, too.
    QVERIFY(QDir(program).mkdir(u"writable"_s));
    QVERIFY(!makeDataDirectory({program, true}));
}

void TestDataPaths::itIsTheCurrentFolderUnlessSaidOtherwise()
{
    QCOMPARE(dataDirectory(), QDir::currentPath());
    useDataDirectory(u"/no/such/folder"_s);
    QCOMPARE(dataDirectory(), u"/no/such/folder"_s);
    useDataDirectory({});
    QCOMPARE(dataDirectory(), QDir::currentPath());
}

void TestDataPaths::settingsAndLogGoWhereItIs()
{
    QVERIFY(QDir().mkdir(u"data"_s));
    useDataDirectory(folder->path(u"data"_s));
    const SettingsStore store;
    QCOMPARE(entriesOf(u"data"_s), QStringList(u"config"_s));
    AppLog log;
    log.setSaveToFile(true);
    log.append(u"text"_s);
    QCOMPARE(entriesOf(u"data"_s), (QStringList{u"config"_s, u"logs"_s}));
    QCOMPARE(entriesOf(folder->path()), QStringList(u"data"_s));
}

QTEST_GUILESS_MAIN(TestDataPaths)
#include "tst_datapaths.moc"
