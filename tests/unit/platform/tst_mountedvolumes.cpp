// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/mountedvolumes.h"
#include "platform/mountedvolumes_unix.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestMountedVolumes final : public QObject
{
    Q_OBJECT

private slots:
    void lineOfTheTable_data();
    void lineOfTheTable();
    void damagedTableGivesTheRoot();
    void rootComesFirstAndOnce();
};

void TestMountedVolumes::lineOfTheTable_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("volume");
    const QString none;
    const auto add = [](const char *what, const char *line, const QString &volume) {
        QTest::newRow(what) << QByteArray(line) << volume;
    };
    add("a stick", "90 27 8:17 / /media/ann/STICK rw shared:3 - vfat /dev/sdb1 rw", u"/media/ann/STICK"_s);
    add("a stick, elsewhere", "90 27 8:17 / /run/media/ann/a rw - exfat /dev/sdb1 rw", u"/run/media/ann/a"_s);
    add("without optional fields", "90 27 8:17 / /mnt/disk rw - ext4 /dev/sdb1 rw", u"/mnt/disk"_s);
    add("a blank in the name", "9 2 8:1 / /media/My\\040Disk\\134 rw - ext4 /dev/sdb1 rw",
        u"/media/My Disk\\"_s);
    add("a name in UTF-8", "9 2 8:1 / /media/\303\204 rw - ext4 /dev/sdb1 rw", u"/media/Ä"_s);
    add("a subvolume", "9 2 8:1 /@data /data rw - btrfs /dev/sda2 rw", u"/data"_s);
    add("a network", "9 2 0:5 / /mnt/server rw - nfs4 server:/export rw", u"/mnt/server"_s);
    add("a folder of a network", "9 2 0:5 /sub /mnt/server rw - cifs //server/share rw", u"/mnt/server"_s);
    add("a program's", "9 2 0:5 / /home/ann/far rw - fuse.sshfs ann@far:/ rw", u"/home/ann/far"_s);
    add("processes", "22 27 0:21 / /proc rw - proc proc rw", none);
    add("memory", "25 24 0:23 / /mnt/memory rw - tmpfs tmpfs rw", none);
    add("the desktop's own", "9 2 0:5 / /run/user/1000/doc rw - fuse.portal portal rw", none);
    add("a package", "9 2 7:1 / /snap/core/1 ro - squashfs /dev/loop1 ro", none);
    add("an image", "9 2 7:1 / /mnt/image ro - iso9660 /dev/loop1 ro", none);
    add("boot", "9 2 8:1 / /boot/efi rw - vfat /dev/sda1 rw", none);
    add("boot itself", "9 2 8:1 / /boot rw - ext4 /dev/sda1 rw", none);
    add("not boot", "9 2 8:1 / /boots rw - ext4 /dev/sda1 rw", u"/boots"_s);
    add("homes", "9 2 8:1 / /home rw - ext4 /dev/sda3 rw", none);
    add("a folder mounted elsewhere", "9 2 8:1 /srv/a /mnt/a rw - ext4 /dev/sda3 rw", none);
}

void TestMountedVolumes::lineOfTheTable()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, volume);
    QStringList expected = {u"/"_s};
    if (!volume.isNull())
        expected.append(volume);
    // A mount over a mount is one place.
    QCOMPARE(volumesOf(line + '\n' + line + '\n'), expected);
}

void TestMountedVolumes::damagedTableGivesTheRoot()
{
    for (const char *table : {"", "\n", "-", "- - -", "a b c d e f", "a b c d e -", "a b c / /mnt rw - x"})
        QCOMPARE(volumesOf(table), QStringList(u"/"_s));
}

void TestMountedVolumes::rootComesFirstAndOnce()
{
    const QStringList volumes = mountedVolumes();
    QCOMPARE(volumes.constFirst(), u"/"_s);
    QCOMPARE(volumes.count(u"/"_s), 1);
    QVERIFY(!volumes.contains(u"/proc"_s));
}

QTEST_GUILESS_MAIN(TestMountedVolumes)
#include "tst_mountedvolumes.moc"
