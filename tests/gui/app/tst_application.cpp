// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/application.h"
#include "app/splash.h"
#include "core/settingsstore.h"
#include "mainwindow/mainwindow.h"
#include "support/toplevel.h"

#include <QDir>
#include <QFile>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

/// The application object after a start-up with settings of its own.
class TestApplication final : public QObject
{
    Q_OBJECT

private slots:
    void hasItsIdentity();
    void publishesTheValidationPatterns_data();
    void publishesTheValidationPatterns();
    void worksInTheDataFolder();
    void logsTheStartInOrder();
    void windowGetsTheStoredOpacity();
    void closingTheLastWindowDoesNotEndIt();
};

void TestApplication::hasItsIdentity()
{
    QCOMPARE(QCoreApplication::applicationName(), u"Orvanto"_s);
    QCOMPARE(QCoreApplication::applicationVersion(), u"1.2.0.5"_s);
    QCOMPARE(QCoreApplication::organizationName(), u"Kavrondel"_s);
    QCOMPARE(QCoreApplication::organizationDomain(), u"kavrondel.example"_s);
    QVERIFY(topLevel<MainWindow>());
    QCOMPARE(topLevel<MainWindow>()->windowTitle(), u"Orvanto"_s);
}

void TestApplication::publishesTheValidationPatterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("valid_dirpath") << u"[^(*|?|<|>)]*"_s;
    QTest::newRow("valid_xmlentry") << u"[^('|<|>)]*"_s;
    QTest::newRow("valid_url") << u"[^(*|?|\"|<|>|@)]*"_s;
    QTest::newRow("valid_filename") << u"[^(\\|\\\\|/|*|?|\"|'|<|>|:)]*"_s;
}

void TestApplication::publishesTheValidationPatterns()
{
    // Deliberate: parentheses and bars stand inside the classes.
    QFETCH(QString, pattern);
    QCOMPARE(qApp->property(QTest::currentDataTag()).toString(), pattern);
}

void TestApplication::worksInTheDataFolder()
{
    const QString dataHome = QDir(qEnvironmentVariable("XDG_DATA_HOME")).canonicalPath();
    QCOMPARE(QDir::currentPath(), dataHome + "/Kavrondel/Orvanto"_L1);
}

void TestApplication::logsTheStartInOrder()
{
    const auto *table = topLevel<MainWindow>()->findChild<QTableWidget *>(u"tableWidgetLog"_s);
    QTRY_VERIFY(table->rowCount() >= 6);
    QStringList lines;
    for (int row = table->rowCount() - 1; row >= 0; --row)
        lines.append(table->item(row, 1)->text());
    QVERIFY2(lines.value(2).startsWith("OS version "_L1), qPrintable(lines.value(2)));
    lines.removeAt(2);
    lines.removeIf([](const QString &line) { return line.startsWith("This plugin"_L1); });
    QCOMPARE(lines, (QStringList{u"Orvanto started"_s, u"App version 1.2.0.5"_s, u"running in 64-bit mode"_s,
                                 u"languages loaded"_s, u"initialization complete"_s}));
}

void TestApplication::windowGetsTheStoredOpacity()
{
    // A window keeps its opacity in steps of 1/255.
    QVERIFY(std::abs(topLevel<MainWindow>()->windowOpacity() - 0.5) < 1.0 / 255);
}

void TestApplication::closingTheLastWindowDoesNotEndIt()
{
    // With the window in the tray, the last one may be a box.
    QVERIFY(!QGuiApplication::quitOnLastWindowClosed());
}

/// What is shown during a start-up.
class TestSplashAtStart final : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && dynamic_cast<SplashFrame *>(watched))
            ++shown;
        return false;
    }

    int shown = 0;
    int expected = 0;

private slots:
    void isShownUnlessSwitchedOff() { QCOMPARE(shown, expected); }
};

/// What an end leaves behind that no closing of the window came before.
class TestSettingsAtEnd final : public QObject
{
    Q_OBJECT

public:
    QByteArray text;

private slots:
    void areSaved() { QVERIFY2(text.contains("<LastWord>true</LastWord>"), text.constData()); }
};

namespace {

QString settingsFile(const QTemporaryDir &home)
{
    return home.filePath(u"Kavrondel/Orvanto/config/global.xml"_s);
}

bool writeSettings(const QTemporaryDir &home, const QByteArray &splash)
{
    QDir().mkpath(home.filePath(u"Kavrondel/Orvanto/config"_s));
    QFile file(settingsFile(home));
    const QByteArray text = "<Settings><Misc><IsFirstStart>false</IsFirstStart>" + splash +
                            "</Misc><Window><Opacity>0.5</Opacity></Window>"
                            "<SupportUsHint>false</SupportUsHint></Settings>";
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace

int main(int argc, char **argv)
{
    const QString before = QDir::currentPath();
    int result = 0;
    for (const QByteArray &splash :
         {QByteArray("<DisableSplashScreen>true</DisableSplashScreen>"), QByteArray()}) {
        const QTemporaryDir home;
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        if (!writeSettings(home, splash))
            return 1;
        {
            TestSplashAtStart atStart;
            atStart.expected = splash.isEmpty() ? 1 : 0;
            Application application(argc, argv);
            application.installEventFilter(&atStart);
            application.init();
            result |= QTest::qExec(&atStart, argc, argv);
            TestApplication test;
            result |= QTest::qExec(&test, argc, argv);
            SettingsStore::instance()->setValueByName(u"LastWord"_s, true);
        }
        QDir::setCurrent(before);
        TestSettingsAtEnd atEnd;
        QFile file(settingsFile(home));
        if (file.open(QIODevice::ReadOnly))
            atEnd.text = file.readAll();
        result |= QTest::qExec(&atEnd, argc, argv);
    }
    return result;
}
#include "tst_application.moc"
