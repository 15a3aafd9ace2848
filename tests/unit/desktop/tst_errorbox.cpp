// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/errorbox.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr char role[] = "--show-error-box";
constexpr char title[] = "Orvanto Ж";
constexpr char text[] = "<b>Something</b> has \"failed\" – 😀";

/// Says on standard output what the box shows and closes it, as soon as there is one.
void answerTheBox()
{
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        const QString shown = u"%1|%2|%3|%4|%5"_s.arg(box->windowTitle(), box->text())
                                  .arg(int(box->icon()))
                                  .arg(int(box->textFormat()))
                                  .arg(box->parentWidget() == nullptr);
        std::fputs(shown.toUtf8().constData(), stdout);
        box->accept();
    });
    timer->start(0);
}

int showTheBox()
{
    qAddPreRoutine(answerTheBox);
    showErrorBox(title, text);
    std::fputs("|returned", stdout);
    return 0;
}

} // namespace

class TestErrorBox final : public QObject
{
    Q_OBJECT

private slots:
    void writesToStandardErrorWithoutADisplay();
    void showsABoxWhereThereIsADisplay_data();
    void showsABoxWhereThereIsADisplay();

private:
    /// Runs this executable in its role with this display variable, if any.
    static bool run(QProcess &process, const QString &variable)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        if (!variable.isEmpty())
            environment.insert(variable, u":77"_s);
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(role)});
        return process.waitForFinished();
    }
};

void TestErrorBox::writesToStandardErrorWithoutADisplay()
{
    QProcess process;
    QVERIFY(run(process, QString()));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardError(), QByteArray(title) + '\n' + text + '\n');
    QCOMPARE(process.readAllStandardOutput(), "|returned");
}

void TestErrorBox::showsABoxWhereThereIsADisplay_data()
{
    QTest::addColumn<QString>("variable");

    QTest::newRow("X") << u"DISPLAY"_s;
    QTest::newRow("Wayland") << u"WAYLAND_DISPLAY"_s;
}

void TestErrorBox::showsABoxWhereThereIsADisplay()
{
    QFETCH(QString, variable);
    QProcess process;
    QVERIFY(run(process, variable));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    const QByteArray message = QByteArray(title) + '\n' + text + '\n';
    QVERIFY(process.readAllStandardError().startsWith(message));
    const QString expected =
        u"%1|%2|%3|%4|1|returned"_s.arg(QString::fromUtf8(title), QString::fromUtf8(text))
            .arg(int(QMessageBox::Critical))
            .arg(int(Qt::PlainText));
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), expected);
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], role) == 0)
        return showTheBox();
    const QCoreApplication application(argc, argv);
    TestErrorBox test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_errorbox.moc"
