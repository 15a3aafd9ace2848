// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "support/drivenwindow.h"
#include "support/faketranslator.h"
#include "support/modalanswer.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Two rules, the second of them off and with a comment, and a comment of the whole.
const QByteArray twoRules =
    R"({"format": "orvanto-rules", "version": 1, "name": "Two & more", "comment": "all",
 "rules": [{"kind": "insert", "text": "x", "position": 0, "from": "start"},
 {"kind": "insert", "enabled": false, "text": "y", "position": 0, "from": "start", "comment": "why"}]})";
const QByteArray badRule = R"({"format": "orvanto-rules", "version": 1, "name": "Bad",
 "rules": [{"kind": "insert", "text": "x", "position": 0, "from": "start"},
 {"kind": "insert", "text": "y", "position": 513, "from": "start"}]})";

QString upper(QLatin1StringView context, const QString &text)
{
    return context == "RuleSetMenu"_L1 ? text.toUpper() : QString();
}

} // namespace

/// Rule sets in the window: the button, its menu, and the dialogs behind it.
class MainWindowRuleSets : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    TempTree *tree = nullptr;

    void start()
    {
        window.reset();
        window = std::make_unique<DrivenWindow>();
    }
    void end()
    {
        window->get()->close();
        start();
    }
    [[nodiscard]] QMenu *menu() const
    {
        QMenu *found = window->child<QToolButton>("buttonRuleSets")->menu();
        emit found->aboutToShow();
        return found;
    }
    static QAction *entry(const QMenu *menu, const QString &text)
    {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        qFatal("no entry: %s", qPrintable(text));
    }
    void choose(const QString &text) const { entry(menu(), text)->trigger(); }
    [[nodiscard]] QStringList entries() const
    {
        QStringList texts;
        const QList<QAction *> actions = menu()->actions();
        for (const QAction *action : actions) {
            // Those at an end are not shown.
            if (!action->isSeparator() || !texts.isEmpty())
                texts.append(action->isSeparator() ? u"-"_s : action->text());
        }
        return texts;
    }
    [[nodiscard]] QString shownName() const { return window->child<QLabel>("labelRuleSet")->text(); }
    void saveAs(const QString &name, const std::function<void()> &prepareForMore = {}) const
    {
        const ModalAnswer answer([&](QDialog *dialog) {
            if (prepareForMore)
                prepareForMore();
            dialog->findChild<QLineEdit *>(u"lineEditRuleSetName"_s)->setText(name);
            dialog->accept();
        });
        choose(u"Save as…"_s);
        QVERIFY(answer.isDone());
    }
    [[nodiscard]] QString inserted() const
    {
        QString texts;
        for (int row = 0; row < window->ruleTree()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = window->ruleTree()->topLevelItem(row);
            const QString text = item->text(1).section(u'\'', 1, 1);
            texts += item->checkState(0) == Qt::Checked ? text : u'(' + text + u')';
        }
        return texts;
    }
    static void pick(QDialog *dialog, const QString &path)
    {
        auto *files = qobject_cast<QFileDialog *>(dialog);
        QVERIFY(files);
        files->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
        QMetaObject::invokeMethod(files, "accept");
    }
    void openFile(const QString &path) const
    {
        const ModalAnswer answer([&path](QDialog *dialog) { pick(dialog, path); });
        choose(u"Open file…"_s);
        QVERIFY(answer.isDone());
    }
    void manage(const std::function<void(QDialog *)> &look) const
    {
        const ModalAnswer answer(look);
        choose(u"Manage…"_s);
        QVERIFY(answer.isDone());
    }
    static QStringList listed(const QDialog *dialog)
    {
        const auto *list = dialog->findChild<QListWidget *>(u"listRuleSets"_s);
        QStringList names;
        for (int row = 0; row < list->count(); ++row)
            names.append(list->item(row)->text());
        return names;
    }
    /// What a drag of files does over the list of rules, and a drop there.
    [[nodiscard]] bool dropOnRules(const QStringList &paths) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QWidget *viewport = window->ruleTree()->viewport();
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &drop);
        return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
    }

private slots:
    void initTestCase()
    {
        // Nobody but a person can answer those of the system.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        start();
    }
    void cleanup()
    {
        window.reset();
        settings.reset();
    }

    void menuAtTheFirstStart()
    {
        QCOMPARE(window->child<QToolButton>("buttonRuleSets")->text(), u"Rule sets"_s);
        QCOMPARE(entries(), QStringList({u"Manage…"_s, u"Open file…"_s, u"-"_s, u"Examples"_s}));
        QCOMPARE(shownName(), QString());
        // Looking makes nothing.
        QVERIFY(!tree->names().contains(u"rulesets"_s));
    }

    void savedSetComesBackAsItWas()
    {
        window->addInsert(u" a "_s);
        window->addReplace(u"(\\d)"_s, u"<\\1>"_s, true);
        window->ruleTree()->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
        const QStringList rules = window->rules();
        saveAs(u"Mine & yours"_s);
        QCOMPARE(tree->names(u"rulesets"_s), QStringList{u"Mine & yours.orvanto-rules"_s});
        QCOMPARE(shownName(), u"Mine & yours"_s);
        window->click("buttonRuleListClear");
        choose(u"Mine && yours"_s);
        QCOMPARE(window->rules(), rules);
        QCOMPARE(window->ruleTree()->topLevelItem(1)->checkState(0), Qt::Unchecked);
        end();
        QCOMPARE(window->rules(), QStringList());
        choose(u"Mine && yours"_s);
        QCOMPARE(window->rules(), rules);
    }

    void commentsAreKept()
    {
        const QString path = tree->addFile(u"two.orvanto-rules"_s, twoRules);
        openFile(path);
        QCOMPARE(shownName(), u"Two & more"_s);
        QCOMPARE(inserted(), u"x(y)"_s);
        window->selectRule(1);
        window->click("buttonRuleListUp");
        choose(u"Save"_s);
        const QByteArray content = readFile(path);
        QVERIFY(content.contains("\"comment\": \"all\""));
        QVERIFY2(
            content.contains("\"text\": \"y\", \"position\": 0, \"from\": \"start\", \"comment\": \"why\""),
            content.constData());
    }

    void nameIsMarkedWhileTheRulesAreOthers()
    {
        window->addInsert(u"a"_s);
        saveAs(u"A"_s);
        const auto *label = window->child<QLabel>("labelRuleSet");
        QCOMPARE(label->accessibleDescription(), QString());
        QVERIFY(!entries().contains(u"Save"_s));
        window->ruleTree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(shownName(), u"A *"_s);
        QVERIFY(!label->accessibleDescription().isEmpty());
        window->ruleTree()->topLevelItem(0)->setCheckState(0, Qt::Checked);
        QCOMPARE(shownName(), u"A"_s);
        window->addInsert(u"b"_s);
        QCOMPARE(shownName(), u"A *"_s);
        QVERIFY(entries().contains(u"Save"_s));
        choose(u"Save"_s);
        QCOMPARE(shownName(), u"A"_s);
        window->click("buttonRuleListClear");
        choose(u"A"_s);
        QCOMPARE(inserted(), u"ab"_s);
    }

    void unsavedRulesAreNotLostUnasked()
    {
        window->addInsert(u"a"_s);
        saveAs(u"A"_s);
        // Saved rules can be loaded again.
        choose(u"A"_s);
        window->addInsert(u"b"_s);
        {
            const BoxAnswer box(QMessageBox::Cancel);
            choose(u"A"_s);
            QVERIFY(box.isDone());
            QCOMPARE(box.defaultButton, u"Cancel"_s);
        }
        QCOMPARE(inserted(), u"ab"_s);
        {
            const BoxAnswer box(QMessageBox::Yes);
            choose(u"A"_s);
            QVERIFY(box.isDone());
        }
        QCOMPARE(inserted(), u"a"_s);
        window->addInsert(u"c"_s);
        window->click("buttonRuleListClear");
        choose(u"A"_s);
        QCOMPARE(inserted(), u"a"_s);
    }

    void neverSavedRulesAreNotLostUnasked()
    {
        window->addInsert(u"a"_s);
        const BoxAnswer box(QMessageBox::Cancel);
        entry(menu(), u"Examples"_s)->menu()->actions().constFirst()->trigger();
        QVERIFY(box.isDone());
        QCOMPARE(inserted(), u"a"_s);
    }

    void shiftAppends()
    {
        window->addInsert(u"a"_s);
        saveAs(u"A"_s);
        window->addInsert(u"b"_s);
        window->get()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window->get()));
        QMenu *sets = window->child<QToolButton>("buttonRuleSets")->menu();
        sets->popup(window->get()->mapToGlobal(QPoint(50, 50)));
        QVERIFY(QTest::qWaitForWindowExposed(sets));
        QTest::mouseClick(sets, Qt::LeftButton, Qt::ShiftModifier,
                          sets->actionGeometry(entry(sets, u"A"_s)).center());
        // The key is let go.
        QTest::mouseMove(window->get()->windowHandle(), QPoint(5, 5));
        QTRY_COMPARE(QGuiApplication::keyboardModifiers(), Qt::NoModifier);
        QCOMPARE(inserted(), u"aba"_s);
        QCOMPARE(shownName(), u"A *"_s);
    }

    void lastUsedIsKeptAndOffered()
    {
        window->addInsert(u"a"_s);
        window->addInsert(u"b"_s);
        window->ruleTree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        end();
        // Offered, never loaded by itself; no saved set.
        QCOMPARE(inserted(), QString());
        QVERIFY(!tree->names().contains(u"rulesets"_s));
        // An end without rules leaves it.
        end();
        choose(u"Last used"_s);
        QCOMPARE(inserted(), u"(a)b"_s);
        QVERIFY(!entries().contains(u"Save"_s));
        // These are nowhere else when the program ends with others.
        const BoxAnswer box(QMessageBox::Cancel);
        choose(u"Last used"_s);
        QVERIFY(box.isDone());
    }

    // The chain is kept as "Last used", the files are where they were.
    void closeAsksNothingAndLosesNothing()
    {
        window->drop({tree->addFile(u"file"_s)});
        window->addInsert(u"a"_s);
        saveAs(u"A"_s);
        window->addInsert(u"b"_s);
        const ModalAnswer question([](QDialog *) {});
        end();
        QVERIFY(!question.isDone());
        QCOMPARE(tree->content(u"file"_s), QByteArray("file"));
        choose(u"A"_s);
        QCOMPARE(inserted(), u"a"_s);
        choose(u"Last used"_s);
        QCOMPARE(inserted(), u"ab"_s);
        QCOMPARE(window->files()->count(), 0);
    }

    void nothingIsLoadedFromABadFile()
    {
        window->addInsert(u"a"_s);
        const QString path = tree->addFile(u"bad.orvanto-rules"_s, badRule);
        // Behind the dialog that names the file.
        std::unique_ptr<BoxAnswer> answer;
        const ModalAnswer names([&](QDialog *dialog) {
            answer = std::make_unique<BoxAnswer>(QMessageBox::Ok);
            pick(dialog, path);
        });
        choose(u"Open file…"_s);
        QVERIFY(answer && answer->isDone());
        const BoxAnswer &box = *answer;
        QVERIFY2(box.text.contains("bad.orvanto-rules"_L1), qPrintable(box.text));
        QVERIFY2(box.text.contains("rule 2, \"position\": must be a whole number from 0 to 512"_L1),
                 qPrintable(box.text));
        QCOMPARE(box.format, Qt::PlainText);
        QCOMPARE(inserted(), u"a"_s);
        QCOMPARE(shownName(), QString());
        QCOMPARE(readFile(path), badRule);
    }

    void savingUnderANameInUseAsks()
    {
        window->addInsert(u"a"_s);
        saveAs(u"A"_s);
        window->addInsert(u"b"_s);
        std::unique_ptr<BoxAnswer> box;
        saveAs(u"A"_s, [&box] { box = std::make_unique<BoxAnswer>(QMessageBox::Cancel); });
        QVERIFY(box && box->isDone());
        QCOMPARE(shownName(), u"A *"_s);
        QCOMPARE(tree->names(u"rulesets"_s).size(), 1);
    }

    void savingThatFailsIsTold()
    {
        tree->addFile(u"rulesets"_s);
        window->addInsert(u"a"_s);
        std::unique_ptr<BoxAnswer> box;
        saveAs(u"A"_s, [&box] { box = std::make_unique<BoxAnswer>(QMessageBox::Ok); });
        QVERIFY(box && box->isDone());
        QCOMPARE(shownName(), QString());
    }

    void setsAreRenamedAndDeleted()
    {
        window->addInsert(u"a"_s);
        saveAs(u"A"_s);
        window->addInsert(u"b"_s);
        saveAs(u"B"_s);
        manage([](QDialog *dialog) {
            QCOMPARE(listed(dialog), QStringList({u"A"_s, u"B"_s}));
            auto *list = dialog->findChild<QListWidget *>(u"listRuleSets"_s);
            {
                const BoxAnswer taken(QMessageBox::Ok);
                list->item(1)->setText(u"A"_s);
                QTRY_VERIFY(taken.isDone());
                QVERIFY(taken.text.contains(u"another rule set has this name"_s));
            }
            QCOMPARE(listed(dialog), QStringList({u"A"_s, u"B"_s}));
            list->item(1)->setText(u" C "_s);
            QTRY_COMPARE(listed(dialog), QStringList({u"A"_s, u"C"_s}));
            QCOMPARE(list->currentRow(), 1);
            list->setCurrentRow(0);
            const BoxAnswer box(QMessageBox::Yes);
            dialog->findChild<QPushButton *>(u"buttonDeleteRuleSet"_s)->click();
            QVERIFY(box.isDone());
            QCOMPARE(listed(dialog), QStringList{u"C"_s});
        });
        QCOMPARE(shownName(), u"C"_s);
        QCOMPARE(tree->names(u"rulesets"_s), QStringList{u"C.orvanto-rules"_s});
        QCOMPARE(entries().constFirst(), u"C"_s);
        window->addInsert(u"c"_s);
        choose(u"Save"_s);
        QCOMPARE(tree->names(u"rulesets"_s), QStringList{u"C.orvanto-rules"_s});
    }

    void setsAreImportedAndExported()
    {
        const QString path = tree->addFile(u"two.orvanto-rules"_s, twoRules);
        const QString exported = tree->path(u"out.orvanto-rules"_s);
        manage([&](QDialog *dialog) {
            QVERIFY(!dialog->findChild<QPushButton *>(u"buttonExportRuleSet"_s)->isEnabled());
            {
                const ModalAnswer answer([&path](QDialog *files) { pick(files, path); });
                dialog->findChild<QPushButton *>(u"buttonImportRuleSets"_s)->click();
                QVERIFY(answer.isDone());
            }
            QCOMPARE(listed(dialog), QStringList{u"Two & more"_s});
            const ModalAnswer answer([&exported](QDialog *files) { pick(files, exported); });
            dialog->findChild<QPushButton *>(u"buttonExportRuleSet"_s)->click();
            QVERIFY(answer.isDone());
        });
        // The active rules stay.
        QCOMPARE(inserted(), QString());
        QVERIFY(readFile(exported).contains("\"comment\": \"why\""));
        openFile(exported);
        QCOMPARE(inserted(), u"x(y)"_s);
    }

    void exportedFileHasANameForAnySystem()
    {
        window->addInsert(u"a"_s);
        saveAs(u"What? / a:b"_s);
        manage([](QDialog *dialog) {
            QString proposed;
            const ModalAnswer answer([&proposed](QDialog *files) {
                proposed = files->findChild<QLineEdit *>(u"fileNameEdit"_s)->text();
                files->reject();
            });
            dialog->findChild<QPushButton *>(u"buttonExportRuleSet"_s)->click();
            QVERIFY(answer.isDone());
            QCOMPARE(proposed, u"What_ _ a_b.orvanto-rules"_s);
        });
    }

    void droppedSetIsImported()
    {
        const QString path = tree->addFile(u"two.orvanto-rules"_s, twoRules);
        // Anything else is for the list of files, as on the rest of the window.
        const QString other = tree->addFile(u"other.txt"_s);
        QVERIFY(dropOnRules({other}));
        QTRY_COMPARE(window->rowPaths(), QStringList{other});
        QCOMPARE(inserted(), QString());
        QVERIFY(dropOnRules({path}));
        QTRY_COMPARE(inserted(), u"x(y)"_s);
        QCOMPARE(window->rowPaths(), QStringList{other});
        QCOMPARE(tree->names(u"rulesets"_s).size(), 1);
        QCOMPARE(readFile(path), twoRules);
        // One that is saved already is loaded, not saved a second time.
        window->click("buttonRuleListClear");
        QVERIFY(dropOnRules({tree->path(u"rulesets/"_s + tree->names(u"rulesets"_s).constFirst())}));
        QTRY_COMPARE(inserted(), u"x(y)"_s);
        QCOMPARE(tree->names(u"rulesets"_s).size(), 1);
        // On the list of files it is a file as ever.
        window->drop({path});
        QCOMPARE(window->rowPaths(), (QStringList{other, path}));
    }

    void textsFollowTheLanguage()
    {
        const FakeTranslator translator(upper);
        QCoreApplication::processEvents();
        QCOMPARE(window->child<QToolButton>("buttonRuleSets")->text(), u"RULE SETS"_s);
        QVERIFY(entries().contains(u"OPEN FILE…"_s));
    }

    void examplesAreInTheMenu()
    {
        const QMenu *examples = entry(menu(), u"Examples"_s)->menu();
        QCOMPARE(examples->actions().size(), 7);
        entry(examples, u"Blanks for underscores"_s)->trigger();
        QCOMPARE(window->rules(), QStringList{u"Replace: '_' - ' '"_s});
        QCOMPARE(shownName(), u"Blanks for underscores"_s);
        // Unchanged they can be had again.
        entry(entry(menu(), u"Examples"_s)->menu(), u"Dates as 2024-01-31"_s)->trigger();
        QCOMPARE(shownName(), u"Dates as 2024-01-31"_s);
        window->ruleTree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QVERIFY(!entries().contains(u"Save"_s));
    }
};

QTEST_MAIN(MainWindowRuleSets)
#include "tst_mainwindow_rulesets.moc"
