// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/faultrun.h"
#include "support/duringevents.h"
#include "support/explorerrows.h"
#include "support/rowtip.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QTableWidget>
#include <QToolTip>
#include <QTreeView>

#include <cerrno>
#include <cstdio>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

QByteArray nativePath(const TempTree &tree, const QByteArray &name)
{
    return QFile::encodeName(tree.path()) + '/' + name;
}

/// Makes a file whose name is bytes, what is in it is the name.
void plantBytes(const TempTree &tree, const QByteArray &name)
{
    FILE *file = std::fopen(nativePath(tree, name).constData(), "wbx");
    if (!file ||
        std::fwrite(name.constData(), 1, static_cast<size_t>(name.size()), file) != size_t(name.size()) ||
        std::fclose(file) != 0)
        qFatal("cannot make the file");
}

QByteArray bytesIn(const TempTree &tree, const QByteArray &name)
{
    FILE *file = std::fopen(nativePath(tree, name).constData(), "rb");
    if (!file)
        return "(no such file)";
    char bytes[256];
    const size_t size = std::fread(bytes, 1, sizeof(bytes), file);
    std::fclose(file);
    return {bytes, static_cast<qsizetype>(size)};
}

/// How far to the right the row is drawn on, in pixels of the widget.
int inkWidth(QAbstractItemView *view, const QModelIndex &index)
{
    view->scrollTo(index);
    const QRect row = view->visualRect(index);
    const QImage image = view->viewport()->grab(row).toImage();
    const QRgb background = image.pixel(image.width() - 1, image.height() / 2);
    for (int x = image.width() - 1; x >= 0; --x) {
        // Away from the grid of a table.
        for (int y = 2; y < image.height() - 2; ++y) {
            if (x < image.width() - 2 && image.pixel(x, y) != background)
                return x;
        }
    }
    return 0;
}

const QString markup = u"<b>bold</b><br><img src=x><a href='y'>&amp;</a>.txt"_s;

} // namespace

/// Names that a file system takes and a program may stumble over.
class HostileNames : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FaultRun> run;

    void dropUrl(const QByteArray &url) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromEncoded(url)});
        run->window->onFileListAdded(&data);
    }
    [[nodiscard]] QByteArray urlOf(const QByteArray &name) const
    {
        return "file://" + nativePath(run->tree, name).toPercentEncoding("/");
    }
    /// What shows when the mouse rests on the row.
    QString toolTipOf(QAbstractItemView *view, const QModelIndex &index) const
    {
        QToolTip::hideText();
        view->scrollTo(index);
        const QPoint place = view->visualRect(index).center();
        QHelpEvent event(QEvent::ToolTip, place, view->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view->viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    /// The row is drawn at least as wide as its text is, letter for letter.
    static void verifyDrawnAsText(QAbstractItemView *view, const QModelIndex &index, const QString &text)
    {
        const int wanted = view->fontMetrics().horizontalAdvance(text);
        const int drawn = inkWidth(view, index);
        QVERIFY2(drawn >= wanted * 9 / 10, qPrintable(u"%1 of %2 pixels"_s.arg(drawn).arg(wanted)));
    }

private slots:
    void init() { run = std::make_unique<FaultRun>(); }
    void cleanup()
    {
        // Qt would leave behind what it cannot name.
        std::filesystem::remove_all(QFile::encodeName(run->tree.path()).constData());
        run.reset();
    }

    void namesAreListedPreviewedAndRenamed_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("line feed") << u"a\nb.txt"_s;
        QTest::newRow("line feed first") << u"\na.txt"_s;
        QTest::newRow("line feed last") << u"a.txt\n"_s;
        QTest::newRow("only a line feed") << u"\n"_s;
        QTest::newRow("carriage return") << u"a\rb\r\n.txt"_s;
        QTest::newRow("looks like a line of the log") << u"a\n12:00:00|Total 9 Processed 9 Failed 0.txt"_s;
        QTest::newRow("tab, escape, bell, delete") << u"a\tb\x1b[31mc\a\x7f.txt"_s;
        QTest::newRow("lowest control character") << u"\x01.txt"_s;
        QTest::newRow("next line, line and paragraph separator") << u"a\u0085b\u2028c\u2029d.txt"_s;
        QTest::newRow("right-to-left mark and override") << u"\u200fgpj.\u202eexe.txt"_s;
        QTest::newRow("isolates") << u"\u2066a\u2069\u2067b.txt"_s;
        QTest::newRow("Hebrew and Arabic") << u"שלום سلام 1.txt"_s;
        QTest::newRow("zero width") << u"a\u200bb\u200d\ufeffc.txt"_s;
        QTest::newRow("a noncharacter") << u"a\ufffe\uffffb.txt"_s;
        QTest::newRow("replacement character") << u"a\ufffdb.txt"_s;
        QTest::newRow("combining marks") << u"a"_s + u"\u0301"_s.repeated(60) + u".txt"_s;
        QTest::newRow("composed") << u"\u00e9\uac00.txt"_s;
        QTest::newRow("decomposed") << u"e\u0301\u1100\u1161.txt"_s;
        QTest::newRow("place holders") << u"%1 %2 %L3 %n %%.txt"_s;
        QTest::newRow("a mnemonic") << u"a && b &c.txt"_s;
        QTest::newRow("markup") << QString(markup).remove(u'/');
        QTest::newRow("quotes") << u"'\"`|'.txt"_s;
        QTest::newRow("back slash") << u"a\\b\\..\\c.txt"_s;
        QTest::newRow("looks like an address") << u"http:a?b#c%41%2e.txt"_s;
        QTest::newRow("blanks") << u"  \u00a0\u3000 "_s;
        QTest::newRow("beyond the first plane") << u"😀𝔘\U0010ffff.txt"_s;
    }
    void namesAreListedPreviewedAndRenamed()
    {
        QFETCH(QString, name);
        run->tree.addFile(name, "content");
        run->tree.addFile(u"neighbour.txt"_s);
        run->window.drop({run->tree.path(name)});
        QCOMPARE(run->window.rowPaths(), QStringList(run->tree.path(name)));
        QCOMPARE(run->window.rowTexts(), QStringList(name));
        // A scan finds the same path, so no second row.
        run->window.child<QLineEdit>("lineEditFileFilter")->setText(u"*"_s);
        run->window.drop({run->tree.path()});
        QCOMPARE(run->window.rowPaths(),
                 (QStringList{run->tree.path(name), run->tree.path(u"neighbour.txt"_s)}));
        run->window.selectRule(0);

        run->window.addInsert(u"new-"_s);
        run->window.click("buttonPreview");
        QCOMPARE(run->window.rowTexts(), (QStringList{"new-"_L1 + name, u"new-neighbour.txt"_s}));
        (void)run->window->grab();
        run->run();
        VERIFY_RUN(*run, 2, 2, {});
        QCOMPARE(run->contents(),
                 (Contents{{"new-"_L1 + name, "content"}, {u"new-neighbour.txt"_s, "neighbour.txt"}}));
        // And again, onto a name that is there: told by its name, whatever that holds.
        run->tree.addFile("new-new-"_L1 + name, "in the way");
        run->run();
        VERIFY_RUN(*run, 2, 1, {"new-"_L1 + name});
        QCOMPARE(run->tree.content("new-"_L1 + name), "content");
        run->window->onTimeout();
    }

    // A rule cuts a character in two. There is no such name on disk, and U+FFFD in its place was not asked
    // for.
    void halfACharacterIsRefused()
    {
        run->window.drop({run->tree.addFile(u"😀.txt"_s), run->tree.addFile(u"a.txt"_s)});
        run->tree.addFile(u"\ufffd.txt"_s);
        run->window.addTrim(0, 1);
        run->run();
        VERIFY_RUN(*run, 2, 1, {u"😀.txt"_s});
        QCOMPARE(
            run->contents(),
            (Contents{{u"😀.txt"_s, "😀.txt"}, {u".txt"_s, "a.txt"}, {u"\ufffd.txt"_s, "\xef\xbf\xbd.txt"}}));
        QFile::remove(run->tree.path(u"\ufffd.txt"_s));
        run->window.click("buttonRuleListClear");
        run->window.addTrim(1, 1);
        run->run();
        VERIFY_RUN(*run, 2, 1, {u"😀.txt"_s});
        QCOMPARE(run->contents(), (Contents{{u"😀.txt"_s, "😀.txt"}, {u".xt"_s, "a.txt"}}));
    }

    // Between two rules of a chain a character may be in halves; what counts is the name at its end.
    void halvesThatComeTogetherAgainAreRenamed()
    {
        run->window.drop({run->tree.addFile(u"A\U0001F389.TXT"_s)});
        run->window.addReplace(QString(), u"-"_s);
        run->window.addChangeCase(&RuleWidgetChangeCase::radioButtonLower, false);
        run->run();
        VERIFY_RUN(*run, 1, 0, {u"A\U0001F389.TXT"_s});
        QCOMPARE(run->contents(), (Contents{{u"A\U0001F389.TXT"_s, "A\xF0\x9F\x8E\x89.TXT"}}));
        run->window.addReplace(u"-"_s, QString());
        run->run();
        VERIFY_RUN(*run, 1, 1, {});
        QCOMPARE(run->contents(), (Contents{{u"a\U0001F389.txt"_s, "A\xF0\x9F\x8E\x89.TXT"}}));
    }

    void bytesThatAreNoTextLeadToNoOtherFile_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("other");

        QTest::newRow("Latin-1") << QByteArray("caf\xe9.txt") << QByteArray("caf\xef\xbf\xbd.txt");
        QTest::newRow("single byte") << QByteArray("\xff") << QByteArray("\xef\xbf\xbd");
        QTest::newRow("cut in two") << QByteArray("a\xf0\x9f\x98.txt") << QByteArray("a\xef\xbf\xbd.txt");
        QTest::newRow("surrogate") << QByteArray("a\xed\xa0\xbd.txt")
                                   << QByteArray("a\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd.txt");
        QTest::newRow("too long a form of a slash")
            << QByteArray("a\xc0\xaf.txt") << QByteArray("a\xef\xbf\xbd\xef\xbf\xbd.txt");
    }
    void bytesThatAreNoTextLeadToNoOtherFile()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, other);
        plantBytes(run->tree, name);
        plantBytes(run->tree, other);
        plantBytes(run->tree, "third.txt");
        dropUrl(urlOf(name));
        dropUrl(urlOf("third.txt"));
        QCOMPARE(run->window.files()->count(), 2);
        (void)run->window->grab();
        run->window.addInsert(u"new-"_s);
        run->run();
        const QString shown = run->window.rowTexts().constFirst();
        VERIFY_RUN(*run, 2, 1, {shown});
        QCOMPARE(bytesIn(run->tree, name), name);
        QCOMPARE(bytesIn(run->tree, other), other);
        QCOMPARE(bytesIn(run->tree, "new-third.txt"), "third.txt");

        // The other file is listed by itself, and is renamed.
        dropUrl(urlOf(other));
        QCOMPARE(run->window.files()->count(), 3);
        run->run();
        VERIFY_RUN(*run, 3, 2, {shown});
        QCOMPARE(bytesIn(run->tree, "new-" + other), other);
        QCOMPARE(bytesIn(run->tree, name), name);
    }

    // A folder's files with such names are passed over: Qt's scan does not give them.
    void scanPassesOverBytesThatAreNoText()
    {
        plantBytes(run->tree, "caf\xe9.txt");
        plantBytes(run->tree, "third.txt");
        run->window.drop({run->tree.path()});
        QCOMPARE(run->window.rowPaths(), QStringList(run->tree.path(u"third.txt"_s)));
        run->window.addInsert(u"new-"_s);
        run->run();
        VERIFY_RUN(*run, 1, 1, {});
        QCOMPARE(bytesIn(run->tree, "caf\xe9.txt"), "caf\xe9.txt");
    }

    // A folder by such a name is not mistaken for another one.
    void folderOfBytesThatAreNoText()
    {
        run->tree.addFile(u"\ufffd/inside.txt"_s);
        dropUrl(urlOf("\xff"));
        run->window.addInsert(u"new-"_s);
        run->run();
        VERIFY_RUN(*run, 1, 0, {run->window.rowTexts().constFirst()});
        QCOMPARE(run->tree.names(u"\ufffd"_s), QStringList(u"inside.txt"_s));
    }

    void nullCharacterInADroppedName()
    {
        plantBytes(run->tree, "a");
        dropUrl(urlOf("a") + "%00b");
        run->window.addInsert(u"new-"_s);
        run->run();
        QCOMPARE(run->boxes.seen.constFirst().text, u"Total 1\nProcessed 0\nFailed 1"_s);
        QCOMPARE(bytesIn(run->tree, "a"), "a");
    }

    void markupIsTextInTheList()
    {
        const QString name = QString(markup).remove(u'/');
        run->window->resize(1400, 600);
        run->window.drop({run->tree.addFile(name)});
        ListWidgetFiles *list = run->window.files();
        list->showAddedRows();
        const QModelIndex row = list->model()->index(0, 0);
        QCOMPARE(run->window.rowTexts(), QStringList(name));
        QVERIFY(list->sizeHintForIndex(row).width() >= list->fontMetrics().horizontalAdvance(name));
        verifyDrawnAsText(list, row, name);
        QCOMPARE(tipLines(toolTipOf(list, row)), QStringList(run->tree.path(name)));
        run->window.addInsert(u"<i>x</i>"_s);
        run->window.click("buttonPreview");
        verifyDrawnAsText(list, row, u"<i>x</i>"_s + name);
        run->window.click("checkBoxShowFullPath");
        QCOMPARE(run->window.rowTexts(), QStringList(run->tree.path(u"<i>x</i>"_s + name)));
        QCOMPARE(tipLines(toolTipOf(list, row)), QStringList(run->tree.path(name)));
    }

    void markupIsTextInLogReportAndRules()
    {
        const QString name = QString(markup).remove(u'/');
        run->window->resize(1900, 800);
        run->window.drop({run->tree.addFile(name)});
        run->window.addReplace(u"<b>"_s, u"<b>"_s);
        auto *rules = run->window.ruleTree();
        const QModelIndex rule = rules->model()->index(0, 1);
        const QString properties = rules->topLevelItem(0)->text(1);
        QVERIFY(properties.contains(u"<b>"_s));
        rules->setColumnWidth(1, 2 * rules->fontMetrics().horizontalAdvance(properties));
        verifyDrawnAsText(rules, rule, properties);
        QCOMPARE(toolTipOf(rules, rule), QString());

        run->window.addInsert(u"</u>"_s); // refused: it holds a slash
        run->run();
        VERIFY_RUN(*run, 1, 0, {name});
        QVERIFY(!Qt::mightBeRichText(run->boxes.seen.constFirst().text));
        run->window->onTimeout();
        auto *log = run->window.child<QTableWidget>("tableWidgetLog");
        run->window.child<QWidget>("dockWidgetLog")->show();
        const QString line = "Could not rename file '"_L1 + name + u'\'';
        QCOMPARE(log->item(1, 1)->text(), line);
        log->horizontalHeader()->setStretchLastSection(false);
        log->setColumnWidth(1, 2 * log->fontMetrics().horizontalAdvance(line));
        verifyDrawnAsText(log, log->model()->index(1, 1), line);
        QCOMPARE(toolTipOf(log, log->model()->index(1, 1)), QString());
    }

    void labelOfTheWaitDialogShowsMarkupAsText()
    {
        {
            ProgressDialog dialog(run->window.get());
            dialog.stackedWidget->setCurrentIndex(ProgressDialog::TextPage);
            dialog.labelText->setText(markup);
            QCOMPARE(dialog.labelText->textFormat(), Qt::PlainText);
            QVERIFY(dialog.labelText->sizeHint().width() >=
                    dialog.labelText->fontMetrics().horizontalAdvance(markup));
        }
        // The texts that it shows hold no names at all.
        run->tree.addFiles(u"<b>x%1.txt"_s, 3);
        QStringList shown;
        {
            const DuringEvents watch([&](int) {
                if (const ProgressDialog *wait = run->window.waitDialog())
                    shown.append(wait->labelText->text() + wait->windowTitle());
            });
            run->window.drop({run->tree.path()});
        }
        QVERIFY(!shown.isEmpty());
        QVERIFY2(shown.filter(u"<"_s).isEmpty(), qPrintable(shown.join(u'\n')));
    }

    void explorerShowsMarkupAsText()
    {
        const QString name = QString(markup).remove(u'/');
        run->tree.addFile(name);
        auto *explorer = run->window.child<QTreeView>("treeExplorer");
        explorer->window()->resize(1900, 800);
        const QAbstractItemModel *model = explorer->model();
        const QPersistentModelIndex folder = openInExplorer(explorer, run->tree.path());
        explorer->setRootIndex(folder);
        QTRY_COMPARE(model->rowCount(folder), 1);
        const QModelIndex row = model->index(0, 0, folder);
        QCOMPARE(row.data().toString(), name);
        explorer->setColumnWidth(0, 2 * explorer->fontMetrics().horizontalAdvance(name));
        explorer->setMinimumWidth(explorer->columnWidth(0));
        verifyDrawnAsText(explorer, row, name);
        QCOMPARE(toolTipOf(explorer, row), QString());
    }

    // Much of it at once, so that a wrong row would show.
    void manyOddNamesAtOnce()
    {
        QMap<QByteArray, QByteArray> expected;
        for (int i = 1; i < 256; ++i) {
            if (i == '/' || (i >= 0x80 && i < 0xa0))
                continue;
            const QString name = QChar(i) + u"\n<x>\u202e"_s + QString::number(i);
            run->tree.addFile(name);
            expected.insert("n" + name.toUtf8(), name.toUtf8());
        }
        run->window.child<QLineEdit>("lineEditFileFilter")->setText(u"*"_s);
        // Hidden files are taken when dropped themselves.
        run->window.drop({run->tree.path(), run->tree.path(u".\n<x>\u202e46"_s)});
        QCOMPARE(run->window.files()->count(), expected.size());
        run->window.addInsert(u"n"_s);
        run->run();
        VERIFY_RUN(*run, int(expected.size()), int(expected.size()), {});
        for (const auto &[name, content] : expected.asKeyValueRange())
            QCOMPARE(bytesIn(run->tree, name), content);
    }
};

QTEST_MAIN(HostileNames)
#include "tst_hostile_names.moc"
