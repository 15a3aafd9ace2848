// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/httpserver.h"
#include "support/temptree.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTranslator>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr auto localeFolder = QLatin1String(LOCALE_FOLDER);

/// A translator that remembers which texts it was asked for and did not have.
class StrictTranslator final : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *comment, int n) const override
    {
        QString text = QTranslator::translate(context, source, comment, n);
        if (text.isEmpty() && isSeen(QLatin1StringView(context), QLatin1StringView(source)))
            missing.append(QString::fromUtf8(context) + ": "_L1 + QString::fromUtf8(source));
        return text;
    }

    mutable QStringList missing;

private:
    /// The keys of the file dialog's buttons, which show in none of its texts.
    static bool isKey(const QLatin1StringView context, const QLatin1StringView source)
    {
        const bool isShown = source == "Ctrl"_L1 || source == "Shift"_L1;
        return (context == "QShortcut"_L1 && !isShown) || source.startsWith("Alt+"_L1);
    }
    static bool isSeen(const QLatin1StringView context, const QLatin1StringView source)
    {
        // The plus sign of "Ctrl+C" and the direction of reading are fine as they are; what the socket engine
        // says is replaced by the HTTP layer.
        return context != "QNativeSocketEngine"_L1 && source != "+"_L1 &&
               source != "QT_LAYOUT_DIRECTION"_L1 && !isKey(context, source);
    }
};

/// The entries of the menu that a right click in the middle of the widget opens.
QStringList contextMenuTexts(QWidget *widget)
{
    QStringList texts;
    const auto takeMenu = [&texts] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return false;
        const auto actions = menu->actions();
        for (const QAction *action : actions) {
            if (!action->isSeparator())
                texts.append(action->text());
        }
        menu->close();
        return true;
    };
    // Some widgets run the menu within the event, others open it and return.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, takeMenu);
    timer.start(0);
    const QPoint centre = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, centre, widget->mapToGlobal(centre));
    QCoreApplication::sendEvent(widget, &event);
    [&texts] {
        QTRY_VERIFY(!texts.isEmpty());
    }();
    return texts;
}

} // namespace

/// Qt's own texts must come from this program's translations, which take the place of Qt's.
class TestQtTexts final : public QObject
{
    Q_OBJECT

private:
    StrictTranslator german;

private slots:
    void init();
    void cleanup();

    void everyFileLoads_data();
    void everyFileLoads();
    void lineEdit();
    void spinBox();
    void readOnlyText();
    void scrollBar_data();
    void scrollBar();
    void messageBox();
    void dockButtons();
    void fileDialog_data();
    void fileDialog();
    void connectionRefused();
    void connectionClosed();
};

void TestQtTexts::init()
{
    QVERIFY(german.load(localeFolder + "/orvanto-de_DE.qm"_L1));
    QVERIFY(QCoreApplication::installTranslator(&german));
    german.missing.clear();
}

void TestQtTexts::cleanup()
{
    QCoreApplication::removeTranslator(&german);
    german.missing.removeDuplicates();
    QVERIFY2(german.missing.isEmpty(), qPrintable(german.missing.join(u'\n')));
}

void TestQtTexts::everyFileLoads_data()
{
    QTest::addColumn<QString>("path");
    const auto files = QDir(localeFolder).entryInfoList({u"*.qm"_s});
    QCOMPARE(files.size(), 12);
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void TestQtTexts::everyFileLoads()
{
    QFETCH(const QString, path);
    QTranslator translator;
    QVERIFY(translator.load(path));
    QVERIFY(!translator.translate("MainWindow", "Rename").isEmpty());
    QVERIFY(!translator.translate("QLineEdit", "&Paste").isEmpty());
    const QString flag = localeFolder + u'/' + QFileInfo(path).baseName().section(u'-', 1);
    QVERIFY(!QPixmap(flag + ".png"_L1).isNull());
    QVERIFY(!QPixmap(flag + "@2x.png"_L1).isNull());
}

void TestQtTexts::lineEdit()
{
    QLineEdit edit;
    edit.show();
    const QStringList texts = contextMenuTexts(&edit);
    QCOMPARE(texts.constFirst(), u"&Rückgängig\tStrg+Z"_s);
    QCOMPARE(texts.constLast(), u"Alles auswählen\tStrg+A"_s);
    QCOMPARE(texts.size(), 7);
}

void TestQtTexts::spinBox()
{
    QSpinBox box;
    box.show();
    const QStringList texts = contextMenuTexts(&box);
    QVERIFY(texts.contains(u"Er&höhen"_s));
    QVERIFY(texts.contains("&Verringern"_L1));
    QCOMPARE(texts.size(), 9);
}

void TestQtTexts::readOnlyText()
{
    QTextBrowser browser;
    browser.setHtml(u"<a href='http://kavrondel.example/'>a link</a>"_s);
    browser.show();
    const QStringList texts = contextMenuTexts(browser.viewport());
    QVERIFY(texts.contains("&Kopieren\tStrg+C"_L1));
    QVERIFY(texts.contains("&Linkadresse kopieren"_L1));
    QVERIFY(texts.contains(u"Alles auswählen\tStrg+A"_s));
}

void TestQtTexts::scrollBar_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QString>("edge");
    QTest::newRow("horizontal") << Qt::Horizontal << u"Linker Rand"_s;
    QTest::newRow("vertical") << Qt::Vertical << u"Oberer Rand"_s;
}

void TestQtTexts::scrollBar()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QString, edge);
    QScrollBar bar(orientation);
    bar.show();
    const QStringList texts = contextMenuTexts(&bar);
    QCOMPARE(texts.size(), 7);
    QCOMPARE(texts.constFirst(), "Hierher scrollen"_L1);
    QVERIFY(texts.contains(edge));
}

void TestQtTexts::messageBox()
{
    QMessageBox box;
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Yes | QMessageBox::Close | QMessageBox::Retry |
                           QMessageBox::Ignore);
    QCOMPARE(box.button(QMessageBox::Yes)->text(), "&Ja"_L1);
    QCOMPARE(box.button(QMessageBox::Close)->text(), u"Schließen"_s);
    QCOMPARE(box.button(QMessageBox::Retry)->text(), "Wiederholen"_L1);
    QCOMPARE(box.button(QMessageBox::Ignore)->text(), "Ignorieren"_L1);
}

void TestQtTexts::dockButtons()
{
    const QDockWidget dock;
    const auto *closeButton = dock.findChild<QAbstractButton *>(u"qt_dockwidget_closebutton"_s);
    QVERIFY(closeButton);
    QCOMPARE(closeButton->accessibleName(), u"Schließen"_s);
}

void TestQtTexts::fileDialog_data()
{
    QTest::addColumn<QFileDialog::AcceptMode>("mode");
    QTest::addColumn<QFileDialog::FileMode>("fileMode");
    QTest::addColumn<QString>("name");
    QTest::newRow("open") << QFileDialog::AcceptOpen << QFileDialog::ExistingFile << u"not there"_s;
    QTest::newRow("open several") << QFileDialog::AcceptOpen << QFileDialog::ExistingFiles << u"not there"_s;
    QTest::newRow("folder") << QFileDialog::AcceptOpen << QFileDialog::Directory << u"not there"_s;
    QTest::newRow("save") << QFileDialog::AcceptSave << QFileDialog::AnyFile << u"there"_s;
}

void TestQtTexts::fileDialog()
{
    QFETCH(const QFileDialog::AcceptMode, mode);
    QFETCH(const QFileDialog::FileMode, fileMode);
    QFETCH(const QString, name);
    const TestFolder folder;
    folder.addFile(u"there"_s);
    QFileDialog dialog(nullptr, u"Title"_s, folder.path());
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(fileMode);
    dialog.setViewMode(QFileDialog::Detail);
    dialog.show();
    const auto *tree = dialog.findChild<QTreeView *>(u"treeView"_s);
    QTRY_COMPARE(tree->model()->rowCount(tree->rootIndex()), 1);
    QVERIFY(contextMenuTexts(tree->viewport()).contains(u"&Versteckte Dateien anzeigen"_s));
    QCOMPARE(tree->model()->headerData(1, Qt::Horizontal).toString(), u"Größe"_s);
    // A question or a message, in a loop of its own.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->reject();
    });
    timer.start(1);
    dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(name);
    QMetaObject::invokeMethod(&dialog, "accept");
}

void TestQtTexts::connectionRefused()
{
    QUrl url;
    {
        const HttpServer closed;
        url = closed.url();
    }
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.post(QNetworkRequest(url), QByteArray("a=b")));
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->errorString(), "Verbindung verweigert"_L1);
}

void TestQtTexts::connectionClosed()
{
    HttpServer server;
    server.answerWith({});
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(
        manager.post(QNetworkRequest(server.url()), QByteArray("a=b")));
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->errorString(), "Verbindung beendet"_L1);
}

QTEST_MAIN(TestQtTexts)
#include "tst_qttexts.moc"
