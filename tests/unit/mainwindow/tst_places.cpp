// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/places.h"
#include "support/temptree.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestPlaces final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void thoseThatExistInTheirOrder();
    void noFolderTwice();
    void homeThatIsGoneIsNone();
    void volumesHaveTheLastPartOfTheirPath_data();
    void volumesHaveTheLastPartOfTheirPath();

private:
    /// All but the volumes.
    [[nodiscard]] static QStringList folders();

    std::unique_ptr<TempTree> home;
};

QStringList TestPlaces::folders()
{
    QStringList lines;
    const QList<Place> places = placesThere();
    for (const Place &place : places) {
        if (place.kind != Place::Volume)
            lines.append(place.name() + u' ' + place.path);
    }
    return lines;
}

void TestPlaces::init()
{
    home = std::make_unique<TempTree>();
    qputenv("HOME", QFile::encodeName(home->path()));
    qunsetenv("XDG_CONFIG_HOME");
}

void TestPlaces::thoseThatExistInTheirOrder()
{
    QCOMPARE(folders(), QStringList("Home "_L1 + home->path()));
    home->addFile(u"Downloads"_s); // no folder
    home->addFile(u"Music/a"_s);
    home->addFile(u"Pictures/a"_s);
    QCOMPARE(folders(), QStringList({"Home "_L1 + home->path(), "Pictures "_L1 + home->path(u"Pictures"_s),
                                     "Music "_L1 + home->path(u"Music"_s)}));
    QVERIFY(QFile::remove(home->path(u"Downloads"_s)));
    for (const QString &name : {u"Downloads"_s, u"Documents"_s, u"Desktop"_s})
        home->addFile(name + "/a"_L1);
    QCOMPARE(folders().size(), 6);
    QCOMPARE(folders().at(1), "Desktop "_L1 + home->path(u"Desktop"_s));
    QCOMPARE(folders().at(4), "Documents "_L1 + home->path(u"Documents"_s));
    QCOMPARE(folders().at(5), "Downloads "_L1 + home->path(u"Downloads"_s));
    QCOMPARE(placesThere().at(6).kind, Place::Volume);
}

// As the desktop's own list says it of who wants no such folder.
void TestPlaces::noFolderTwice()
{
    home->addFile(u".config/user-dirs.dirs"_s, "XDG_DESKTOP_DIR=\"$HOME/\"\nXDG_MUSIC_DIR=\"$HOME/Sound\"\n"
                                               "XDG_PICTURES_DIR=\"$HOME/Sound\"\n");
    home->addFile(u"Sound/a"_s);
    QCOMPARE(folders(), QStringList({"Home "_L1 + home->path(), "Pictures "_L1 + home->path(u"Sound"_s)}));
}

void TestPlaces::homeThatIsGoneIsNone()
{
    qputenv("HOME", QFile::encodeName(home->path(u"gone"_s)));
    QCOMPARE(folders(), QStringList());
}

void TestPlaces::volumesHaveTheLastPartOfTheirPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("the root") << u"/"_s << u"/"_s;
    QTest::newRow("a stick") << u"/media/ann/My Stick"_s << u"My Stick"_s;
    QTest::newRow("a drive") << u"C:/"_s << u"C:"_s;
}

void TestPlaces::volumesHaveTheLastPartOfTheirPath()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    QCOMPARE((Place{Place::Volume, path}.name()), name);
}

QTEST_GUILESS_MAIN(TestPlaces)
#include "tst_places.moc"
