// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/pastedfiles.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QFileDialog>
#include <QMenu>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <QWindow>

using namespace Qt::StringLiterals;

/// The ways into the list beside a drop on it: menu, keys, clipboard, and drops on the rest of the window.
class MainWindowWaysIn : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    [[nodiscard]] QToolButton *button() const { return window->child<QToolButton>("buttonAddFiles"); }
    [[nodiscard]] QMenu *menu() const { return button()->findChild<QMenu *>(u"menuAddFiles"_s); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const
    {
        QWidget *target = window->get()->focusWidget() ? window->get()->focusWidget() : window->get();
        QTest::keyClick(target, key, modifiers);
    }
    static void copy(const QStringList &paths)
    {
        auto *data = new QMimeData;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data->setUrls(urls);
        QGuiApplication::clipboard()->setMimeData(data);
    }
    [[nodiscard]] QString message() const { return window->get()->statusBar()->currentMessage(); }

    /// Whether a drag of this data from elsewhere is taken there; with the drop at its end.
    [[nodiscard]] bool drop(const QMimeData &data, const QPoint &place) const
    {
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QWindow *native = window->get()->windowHandle();
        QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(native, &enter);
        QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
        move.setAccepted(enter.isAccepted());
        QCoreApplication::sendEvent(native, &move);
        if (!move.isAccepted()) {
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(native, &leave);
            return false;
        }
        QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(native, &drop);
        return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
    }
    [[nodiscard]] bool drop(const QStringList &paths, const QWidget *target) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        // As file managers do, which text fields fall for.
        data.setText(paths.join(u'\n'));
        return drop(data, target->mapTo(window->get(), target->rect().center()));
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        QVERIFY(window->showActive());
        window->files()->setFocus();
    }
    void cleanup()
    {
        QVERIFY(window->pathsAgree());
        QGuiApplication::clipboard()->clear();
        window.reset();
        settings.reset();
    }

    void clickOpensTheMenu()
    {
        QTest::mouseClick(button(), Qt::LeftButton);
        QTRY_VERIFY(menu()->isVisible());
        QCOMPARE(menu()->actions().size(), 2);
        QCOMPARE(menu()->actions().at(0)->text(), u"Add files…"_s);
        QCOMPARE(menu()->actions().at(0)->shortcut(), QKeySequence(u"Ctrl+O"_s));
        QCOMPARE(menu()->actions().at(1)->text(), u"Add folder…"_s);
        QCOMPARE(menu()->actions().at(1)->shortcut(), QKeySequence(u"Ctrl+Shift+O"_s));
        menu()->close();
        // By the keyboard.
        button()->setFocus(Qt::TabFocusReason);
        press(Qt::Key_Space, Qt::NoModifier);
        QTRY_VERIFY(menu()->isVisible());
        menu()->close();
    }

    void screenReadersKnowTheButton()
    {
        QCOMPARE(button()->accessibleName(), u"Add files and folders"_s);
        QCOMPARE(button()->statusTip(), u"Add files and folders"_s);
    }

    void textsFollowTheLanguage()
    {
        const FakeTranslator translator([](QLatin1StringView context, const QString &text) {
            return context == "AddButton"_L1 || context == "MainWindow"_L1 ? text.toUpper() : QString();
        });
        QCoreApplication::processEvents();
        QCOMPARE(menu()->actions().at(0)->text(), u"ADD FILES…"_s);
        QCOMPARE(menu()->actions().at(1)->text(), u"ADD FOLDER…"_s);
        QCOMPARE(button()->accessibleName(), u"ADD FILES AND FOLDERS"_s);
    }

    void dialogAddsFiles()
    {
        const QStringList paths = tree->addFiles(u"%1.txt"_s, 3);
        ModalAnswer answer([&](QDialog *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            QVERIFY(files);
            QCOMPARE(files->windowTitle(), u"Add files"_s);
            QCOMPARE(files->windowModality(), Qt::WindowModal);
            QCOMPARE(files->fileMode(), QFileDialog::ExistingFiles);
            QCOMPARE(files->directory().path(), QDir::homePath());
            files->setDirectory(tree->path());
            files->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"\"000.txt\" \"002.txt\""_s);
            QMetaObject::invokeMethod(files, "accept");
        });
        press(Qt::Key_O);
        QVERIFY(answer.isDone());
        QCOMPARE(window->rowPaths(), QStringList({paths.at(0), paths.at(2)}));

        // The next one begins where this one ended, and a cancelled one adds nothing.
        ModalAnswer again([&](QDialog *dialog) {
            QCOMPARE(qobject_cast<QFileDialog *>(dialog)->directory().path(), tree->path());
            dialog->reject();
        });
        menu()->actions().at(0)->trigger();
        QVERIFY(again.isDone());
        QCOMPARE(window->files()->count(), 2);
    }

    void dialogAddsAFolder()
    {
        tree->addFile(u"in/9.jpg"_s);
        tree->addFile(u"in/10.jpg"_s);
        tree->addFile(u"in/a.txt"_s);
        window->child<QLineEdit>("lineEditFileFilter")->setText(u"*.jpg"_s);
        ModalAnswer answer([&](QDialog *dialog) {
            auto *folder = qobject_cast<QFileDialog *>(dialog);
            QVERIFY(folder);
            QCOMPARE(folder->windowTitle(), u"Add folder"_s);
            QCOMPARE(folder->fileMode(), QFileDialog::Directory);
            folder->setDirectory(tree->path());
            folder->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(tree->path(u"in"_s));
            QMetaObject::invokeMethod(folder, "accept");
        });
        bool hadWaitDialog = false;
        const DuringEvents watch([&](int) {
            hadWaitDialog = hadWaitDialog || (window->waitDialog() && !window->waitDialog()->isHidden());
        });
        press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(answer.isDone());
        QVERIFY(hadWaitDialog);
        QCOMPARE(window->rowTexts(), QStringList({u"9.jpg"_s, u"10.jpg"_s}));
    }

    void addingCanBeCancelledAsADrop()
    {
        tree->addFiles(u"in/%1.txt"_s, 20);
        copy({tree->path(u"in"_s)});
        {
            const DuringEvents cancel([&](int) {
                if (window->files()->count() == 5)
                    window->waitDialog()->buttonCancel->click();
            });
            press(Qt::Key_V);
        }
        QCOMPARE(window->files()->count(), 5);
    }

    void copiedFilesArePasted()
    {
        const QStringList paths = {tree->addFile(u"b ä%20#.txt"_s), tree->addFile(u"a.txt"_s)};
        copy(paths + paths);
        press(Qt::Key_V);
        QCOMPARE(window->rowPaths(), paths);
    }

    void pathsArePastedALineEach()
    {
        const QStringList paths = {tree->addFile(u"a b.txt"_s), tree->addFile(u"c.txt"_s)};
        QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(paths.join(u'\n')));
        press(Qt::Key_V);
        QCOMPARE(window->rowPaths(), paths);
    }

    void otherTextIsNoFile()
    {
        const QString path = tree->addFile(u"a.txt"_s);
        for (const QString &text : QStringList{{}, u"hello"_s, u"a.txt"_s, path + u"\nand so on"_s}) {
            window->get()->statusBar()->clearMessage();
            QGuiApplication::clipboard()->setText(text);
            press(Qt::Key_V);
            QCOMPARE(window->files()->count(), 0);
            QCOMPARE(message(), u"There are no files on the clipboard"_s);
        }
        QGuiApplication::clipboard()->clear();
        window->get()->statusBar()->clearMessage();
        press(Qt::Key_V);
        QCOMPARE(message(), u"There are no files on the clipboard"_s);
    }

    void pastedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("names");
        // "@" stands for the folder, "#" for its address, which has the files "a", "b c", "d " and "'e'".
        QTest::newRow("one") << u"@a"_s << QStringList{u"a"_s};
        QTest::newRow("lines of Windows") << u"@a\r\n@b c\r\n"_s << QStringList{u"a"_s, u"b c"_s};
        QTest::newRow("blank lines") << u"\n\n  @a\n \t \n@b c  \n"_s << QStringList{u"a"_s, u"b c"_s};
        QTest::newRow("quotes") << u"\"@a\"\n'@b c'"_s << QStringList{u"a"_s, u"b c"_s};
        QTest::newRow("quotes of the name") << u"@'e'\n'@'e''"_s << QStringList{u"'e'"_s, u"'e'"_s};
        QTest::newRow("a blank at the end") << u"@d \n"_s << QStringList{u"d "_s};
        QTest::newRow("addresses") << u"#b%20c\n@a"_s << QStringList{u"b c"_s, u"a"_s};
        QTest::newRow("missing") << u"@x\n@a"_s << QStringList{u"a"_s};
        QTest::newRow("a link that leads nowhere") << u"@link.lnk"_s << QStringList{u"link.lnk"_s};
        QTest::newRow("relative") << u"a"_s << QStringList();
        QTest::newRow("prose") << u"@a\nis a file"_s << QStringList();
        QTest::newRow("code") << u"/** of\n * a function */\n/"_s << QStringList();
        QTest::newRow("an address elsewhere") << u"https://example.com/@a"_s << QStringList();
        QTest::newRow("a resource") << u":/img/add.png"_s << QStringList();
        QTest::newRow("quotes alone") << u"\"\"\n''\n\""_s << QStringList();
        QTest::newRow("nothing") << u""_s << QStringList();
    }

    void pastedText()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, names);
        for (const QString &name : {u"a"_s, u"b c"_s, u"d "_s, u"'e'"_s})
            tree->addFile(name);
        tree->addLink(u"link.lnk"_s, u"nowhere"_s);
        QMimeData data;
        const QString folder = tree->path() + u'/';
        data.setText(text.replace(u'@', folder).replace(u'#', QUrl::fromLocalFile(folder).toString()));
        QStringList found;
        for (const QUrl &url : pastedFiles(data))
            found.append(QDir(tree->path()).relativeFilePath(url.toLocalFile()));
        QCOMPARE(found, names);
    }

    void addressesElsewhereAreNoFiles()
    {
        QMimeData data;
        const QUrl file = QUrl::fromLocalFile(tree->path(u"missing"_s));
        data.setUrls({QUrl(u"https://example.com/a"_s), file});
        // As with a drop, what is missing is listed, and fails.
        QCOMPARE(pastedFiles(data), QList<QUrl>{file});
        data.setUrls({QUrl(u"https://example.com/a"_s)});
        QVERIFY(pastedFiles(data).isEmpty());
    }

    void textFieldsKeepTheirKey()
    {
        const QString path = tree->addFile(u"a.txt"_s);
        QGuiApplication::clipboard()->setText(path);
        auto *filter = window->child<QLineEdit>("lineEditFileFilter");
        filter->setFocus();
        press(Qt::Key_V);
        QCOMPARE(filter->text(), path);
        QGuiApplication::clipboard()->setText(u"7"_s);
        auto *position = window->editor<RuleWidgetTrim>(TrimKind)->spinBoxPosition;
        position->setFocus();
        position->selectAll();
        press(Qt::Key_V);
        QCOMPARE(position->value(), 7);
        QCOMPARE(window->files()->count(), 0);
        QVERIFY(message() != u"There are no files on the clipboard"_s);
        // With the focus elsewhere it is the list's.
        copy({path});
        for (QWidget *widget : {static_cast<QWidget *>(window->ruleTree()), static_cast<QWidget *>(button()),
                                static_cast<QWidget *>(window->child<QTreeView>("treeExplorer"))}) {
            window->files()->clear();
            widget->setFocus();
            press(Qt::Key_V);
            QCOMPARE(window->rowPaths(), QStringList{path});
        }
    }

    void nothingIsAddedWhileADialogIsOpen()
    {
        const QString path = tree->addFile(u"a.txt"_s);
        copy({path});
        QDialog dialog(window->get());
        dialog.show();
        for (QAction *action :
             {menu()->actions().at(0), menu()->actions().at(1), window->child<QAction>("actionPasteFiles")})
            action->trigger();
        QVERIFY(!window->get()->findChild<QFileDialog *>());
        QVERIFY(!drop({path}, window->child<QStatusBar>("statusbar")));
        QCOMPARE(window->files()->count(), 0);
        dialog.hide();
        QVERIFY(drop({path}, window->child<QStatusBar>("statusbar")));
        QCOMPARE(window->rowPaths(), QStringList{path});
    }

    void nothingIsAddedWithinAnAdding()
    {
        const QStringList paths = tree->addFiles(u"%1.txt"_s, 4);
        copy({paths.at(3)});
        int tries = 0;
        {
            const DuringEvents meanwhile([&](int) {
                ++tries;
                window->child<QAction>("actionPasteFiles")->trigger();
                QVERIFY(!drop({paths.at(3)}, window->child<QToolBar>("toolBar")));
            });
            QVERIFY(drop(paths.first(3), window->child<QToolBar>("toolBar")));
        }
        QVERIFY(tries > 1);
        QCOMPARE(window->rowPaths(), paths.first(3));
    }

    void closingTheWindowCutsAPasteOff()
    {
        copy(tree->addFiles(u"%1.txt"_s, 9));
        {
            const DuringEvents close([&](int) {
                if (window->files()->count() == 3)
                    window->get()->close();
            });
            press(Qt::Key_V);
        }
        QVERIFY(window->files()->count() < 9);
        QTRY_VERIFY(window->get()->isHidden());
    }

    void dropsAreTakenAllOverTheWindow()
    {
        (void)window->editor<RuleWidgetInsertText>(InsertTextKind);
        int number = 0;
        QStringList paths;
        for (const char *name : {"statusbar", "toolBar", "lineEditFileFilter", "treeWidgetRules",
                                 "tableWidgetLog", "treeExplorer", "buttonPreview", "comboBoxRules",
                                 "groupBox_3", "buttonLogo", "tabWidgetMain", "splitter"}) {
            window->ruleTree()->setFocus();
            paths.append(tree->addFile(QString::number(++number)));
            QVERIFY2(drop({paths.constLast()}, window->child<QWidget>(name)), name);
            QCOMPARE(window->rowPaths(), paths);
            QVERIFY(window->files()->hasFocus());
        }
        auto *editor = window->editor<RuleWidgetInsertText>(InsertTextKind);
        for (QWidget *field : {static_cast<QWidget *>(editor->lineEditText),
                               static_cast<QWidget *>(editor->spinBoxPosition)}) {
            paths.append(tree->addFile(QString::number(++number)));
            QVERIFY(drop({paths.constLast()}, field));
            QCOMPARE(window->rowPaths(), paths);
        }
        QCOMPARE(editor->lineEditText->text(), QString());
        QCOMPARE(window->child<QLineEdit>("lineEditFileFilter")->text(), QString());
    }

    void fieldsStillTakeDroppedText()
    {
        QMimeData data;
        data.setText(u"*.jpg"_s);
        auto *filter = window->child<QLineEdit>("lineEditFileFilter");
        const QPoint place = filter->mapTo(window->get(), filter->rect().center());
        QVERIFY(drop(data, place));
        QCOMPARE(filter->text(), u"*.jpg"_s);
        // Nobody else has a use for it.
        QVERIFY(!drop(data, window->child<QWidget>("statusbar")->geometry().center()));
        QCOMPARE(window->files()->count(), 0);
    }

    void ruleSetsOnTheRulesAreImported()
    {
        const QString path = tree->addFile(u"mine.orvanto-rules"_s, "{}");
        ModalAnswer complaint([](QDialog *) {});
        QVERIFY(drop({path}, window->ruleTree()->viewport()));
        QTRY_VERIFY(complaint.isDone());
        QCOMPARE(window->files()->count(), 0);
        // Elsewhere it is a file as ever.
        QVERIFY(drop({path}, window->child<QWidget>("statusbar")));
        QCOMPARE(window->rowPaths(), QStringList{path});
    }
};

QTEST_MAIN(MainWindowWaysIn)
#include "tst_mainwindow_waysin.moc"
