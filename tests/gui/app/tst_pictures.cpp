// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/localizer.h"
#include "core/settingsstore.h"
#include "dialogs/dialognotice.h"
#include "dialogs/dialogsettings.h"
#include "dialogs/dialogstart.h"
#include "mainwindow/mainwindow.h"
#include "mainwindow/progressdialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// A picture that is named but missing gives an icon without pixels, and no message.
class TestPictures final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void everyFormShowsItsPictures_data();
    void everyFormShowsItsPictures();
    void applicationIconHasAllSizes();

private:
    QString before = QDir::currentPath();
    QTemporaryDir folder;
};

namespace {

/// What lacks pixels below a window, by object name; pictures counts those that have some.
QStringList blankPictures(QWidget *window, int &pictures)
{
    QStringList blank;
    const auto check = [&](const QString &name, bool isBlank) {
        if (isBlank)
            blank.append(name);
        else
            ++pictures;
    };
    for (const auto *button : window->findChildren<QAbstractButton *>()) {
        if (!button->icon().isNull())
            check(button->objectName(), button->icon().pixmap(button->iconSize()).isNull());
    }
    for (const auto *action : window->findChildren<QAction *>()) {
        if (!action->icon().isNull())
            check(action->objectName(), action->icon().pixmap(24).isNull());
    }
    for (const auto *label : window->findChildren<QLabel *>()) {
        if (label->property("pixmap").isValid() && label->text().isEmpty() && !label->pixmap().isNull())
            ++pictures;
    }
    for (const auto *list : window->findChildren<QListWidget *>()) {
        for (int row = 0; row < list->count(); ++row) {
            if (!list->item(row)->icon().isNull())
                check(list->item(row)->text(), list->item(row)->icon().pixmap(list->iconSize()).isNull());
        }
    }
    for (const auto *tabs : window->findChildren<QTabWidget *>()) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            check(tabs->tabText(tab), tabs->tabIcon(tab).pixmap(tabs->iconSize()).isNull());
    }
    return blank;
}

} // namespace

void TestPictures::initTestCase()
{
    QDir::setCurrent(folder.path());
    Localizer::instance()->discover();
}

void TestPictures::cleanupTestCase()
{
    Localizer::destroy();
    SettingsStore::destroy();
    QDir::setCurrent(before);
}

void TestPictures::everyFormShowsItsPictures_data()
{
    using Maker = std::function<std::unique_ptr<QWidget>()>;
    QTest::addColumn<Maker>("make");
    QTest::addColumn<int>("expected");
    QTest::newRow("main window") << Maker([] {
        auto window = std::make_unique<MainWindow>(Qt::WindowFlags());
        window->initialize();
        return std::unique_ptr<QWidget>(std::move(window));
    }) << 24;
    QTest::newRow("settings") << Maker([] { return std::make_unique<DialogSettings>(nullptr); }) << 13;
    QTest::newRow("first start") << Maker([] {
        return std::make_unique<DialogStart>(nullptr, Qt::WindowFlags());
    }) << 3;
    QTest::newRow("notice") << Maker([] {
        return std::make_unique<DialogNotice>(nullptr, QPixmap(u":/img/contribute.png"_s));
    }) << 2;
    QTest::newRow("progress") << Maker([] { return std::make_unique<ProgressDialog>(nullptr); }) << 2;
}

void TestPictures::everyFormShowsItsPictures()
{
    using Maker = std::function<std::unique_ptr<QWidget>()>;
    QFETCH(Maker, make);
    QFETCH(int, expected);
    const auto window = make();
    int pictures = 0;
    QCOMPARE(blankPictures(window.get(), pictures), QStringList());
    QVERIFY2(pictures >= expected, qPrintable(u"%1 pictures are shown"_s.arg(pictures)));
}

void TestPictures::applicationIconHasAllSizes()
{
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QPixmap picture(u":/img/app/orvanto-%1.png"_s.arg(size));
        QCOMPARE(picture.size(), QSize(size, size));
    }
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
