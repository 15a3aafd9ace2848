// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/datadirectory.h"
#include "core/datapaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool createFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly);
}

} // namespace

/// The markers lie beside this test's own executable, which no other test shares a folder entry of theirs
/// with.
class TestDataDirectory final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void installedModeMakesBothFoldersInOneStep();
    void fileMarkerSwitchesToPortableMode();
    void textMarkerSwitchesToPortableMode();
    void folderMarkerSwitchesToPortableModeLikeAFile();
    void bothMarkersArePortable();
    void portableModeLeavesNoProbeBehind();
    void unwritableProgramFolderThrowsAndMakesNothing();
    void folderThatCannotBeMadeKeepsItsPath();

private:
    void checkPortable();

    QString before = QDir::currentPath();
    std::unique_ptr<QTemporaryDir> home;
    QString programFolder;
};

void TestDataDirectory::init()
{
    QCoreApplication::setOrganizationName(u"Kavrondel"_s);
    QCoreApplication::setApplicationName(u"Orvanto"_s);
    programFolder = QCoreApplication::applicationDirPath();
    home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(home->filePath(u"data"_s)));
}

void TestDataDirectory::cleanup()
{
    useDataDirectory({});
    QDir::setCurrent(before);
    QFile::remove(programFolder + "/portable"_L1);
    QFile::remove(programFolder + "/portable.txt"_L1);
    QDir(programFolder + "/portable"_L1).removeRecursively();
    QDir(programFolder + "/writable"_L1).removeRecursively();
    home.reset();
}

void TestDataDirectory::checkPortable()
{
    QVERIFY(setupDataDirectory());
    QCOMPARE(QDir::currentPath(), QDir(programFolder).canonicalPath());
    QVERIFY(!QFile::exists(home->filePath(u"data"_s)));
}

void TestDataDirectory::installedModeMakesBothFoldersInOneStep()
{
    QVERIFY(setupDataDirectory());
    QCOMPARE(QDir::currentPath(), QDir(home->path()).canonicalPath() + "/data/Kavrondel/Orvanto"_L1);
}

void TestDataDirectory::fileMarkerSwitchesToPortableMode()
{
    QVERIFY(createFile(programFolder + "/portable"_L1));
    checkPortable();
}

void TestDataDirectory::textMarkerSwitchesToPortableMode()
{
    QVERIFY(createFile(programFolder + "/portable.txt"_L1));
    checkPortable();
}

void TestDataDirectory::folderMarkerSwitchesToPortableModeLikeAFile()
{
    QVERIFY(QDir(programFolder).mkdir(u"portable"_s));
    checkPortable();
}

void TestDataDirectory::bothMarkersArePortable()
{
    QVERIFY(createFile(programFolder + "/portable"_L1));
    QVERIFY(createFile(programFolder + "/portable.txt"_L1));
    checkPortable();
}

void TestDataDirectory::portableModeLeavesNoProbeBehind()
{
    QVERIFY(createFile(programFolder + "/portable.txt"_L1));
    QVERIFY(setupDataDirectory());
    QVERIFY(!QFile::exists(programFolder + "/writable"_L1));
}

void TestDataDirectory::unwritableProgramFolderThrowsAndMakesNothing()
{
    QVERIFY(createFile(programFolder + "/portable.txt"_L1));
    // A folder of the probe's name refuses root, too, as a read-only file of that name refuses others.
    QVERIFY(QDir(programFolder).mkdir(u"writable"_s));
    QString thrown;
    try {
        setupDataDirectory();
    } catch (const char *message) {
        thrown = QString::fromLatin1(message);
    }
    QCOMPARE(thrown, u"You must have write permission to the application directory for portable use."_s);
    QCOMPARE(QDir::currentPath(), before);
    QVERIFY(!QFile::exists(home->filePath(u"data"_s)));
}

void TestDataDirectory::folderThatCannotBeMadeKeepsItsPath()
{
    QVERIFY(createFile(home->filePath(u"data"_s)));
    QVERIFY(setupDataDirectory());
    QCOMPARE(QDir::currentPath(), before);
    QCOMPARE(dataDirectory(), home->filePath(u"data/Kavrondel/Orvanto"_s));
}

QTEST_GUILESS_MAIN(TestDataDirectory)
#include "tst_datadirectory.moc"
