// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/application.h"
#include "core/applog.h"
#include "core/settingsstore.h"
#include "dialogs/dialogstart.h"
#include "mainwindow/mainwindow.h"
#include "unit/support/testfolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

template <typename Window>
Window *topLevel()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<Window *>(widget))
            return window;
    }
    return nullptr;
}

/// Goes on through the first-start dialog, should it be there.
void passFirstStart(QTimer &timer)
{
    QObject::connect(&timer, &QTimer::timeout, &timer, [] {
        if (auto *dialog = topLevel<DialogStart>(); dialog && dialog->isVisible())
            dialog->findChild<QPushButton *>(u"buttonNext"_s)->click();
    });
    timer.start(1);
}

/// What a child of the test does: starts the whole program, uses it a little and tells what came of it.
int start(int argc, char **argv)
{
    Application application(argc, argv);
    QTimer timer;
    passFirstStart(timer);
    application.init();
    auto *window = topLevel<MainWindow>();
    AppLog::instance()->setSaveToFile(true);
    AppLog::instance()->append(u"written"_s);
    window->findChild<QToolButton *>(u"toolButtonOpenLogDir"_s)->click();
    SettingsStore::instance()->save();
    const QJsonObject told{
        {u"rename"_s, window->findChild<QPushButton *>(u"buttonRename"_s)->text()},
        {u"opacity"_s, SettingsStore::instance()->value(SettingKey::WindowOpacity, 0).toString()},
        {u"log"_s, QJsonArray::fromStringList(AppLog::instance()->pendingLines())},
    };
    std::fputs(QJsonDocument(told).toJson(QJsonDocument::Compact).constData(), stdout);
    return 0;
}

} // namespace

/// The program's start as a process of its own, in surroundings that are not as they should be.
class TestStart final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { folder.reset(); }
    void launchFolderIsLeftAloneWithoutADataFolder_data();
    void launchFolderIsLeftAloneWithoutADataFolder();

private:
    /// What a start with this XDG_DATA_HOME told; nothing unless it ended well.
    QJsonObject toldWith(const QString &dataHome) const;
    static QStringList logOf(const QJsonObject &told)
    {
        QStringList texts;
        const QJsonArray lines = told.value("log"_L1).toArray();
        for (const QJsonValue &line : lines)
            texts.append(line.toString().section(u'|', 1));
        return texts;
    }

    std::unique_ptr<TestFolder> folder;
};

void TestStart::init()
{
    folder = std::make_unique<TestFolder>();
}

QJsonObject TestStart::toldWith(const QString &dataHome) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, dataHome);
    environment.insert(u"HOME"_s, folder->path(u"taken"_s));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder->path(u"launch"_s));
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {u"--start"_s});
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

void TestStart::launchFolderIsLeftAloneWithoutADataFolder_data()
{
    QTest::addColumn<QString>("dataHome");
    QTest::addColumn<QString>("expected");

    QTest::newRow("a file is in its way") << u"%1/taken"_s << u"%1/taken"_s;
    QTest::newRow("a file is in the way of a parent") << u"%1/taken/deep/er"_s << u"%1/taken/deep/er"_s;
    QTest::newRow("relative") << u"./here"_s << u"%1/taken/.local/share"_s;
}

// Whoever runs the program may not have made the folder that it is started from.
void TestStart::launchFolderIsLeftAloneWithoutADataFolder()
{
    QFETCH(QString, dataHome);
    QFETCH(QString, expected);
    QVERIFY(QDir().mkpath(u"launch/config"_s));
    QVERIFY(writeFile(u"taken"_s, "in the way"));
    const QByteArray foreign = "<Settings><Window><Opacity>0.5</Opacity></Window></Settings>";
    QVERIFY(writeFile(u"launch/config/global.xml"_s, foreign));

    const auto within = [this](const QString &path) {
        return path.contains(u"%1"_s) ? path.arg(folder->path()) : path;
    };
    const QJsonObject told = toldWith(within(dataHome));
    // Of the defaults, not of the file in the launch folder.
    QCOMPARE(told.value("opacity"_L1).toString(), u"1"_s);
    const QString settings = within(expected) + u"/Kavrondel/Orvanto/config/global.xml";
    QCOMPARE(logOf(told).value(logOf(told).size() - 1), u"could not save: "_s + settings);
    QVERIFY(logOf(told).contains(u"written"_s));

    QCOMPARE(readFile(u"launch/config/global.xml"_s), foreign);
    QCOMPARE(entriesOf(u"launch"_s), QStringList(u"config"_s));
    QCOMPARE(entriesOf(u"launch/config"_s), QStringList(u"global.xml"_s));
    QCOMPARE(entriesOf(folder->path()), (QStringList{u"launch"_s, u"taken"_s}));
    QCOMPARE(readFile(u"taken"_s), "in the way");
}

int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--start") == 0)
        return start(argc, argv);
    QCoreApplication application(argc, argv);
    TestStart test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_start.moc"
