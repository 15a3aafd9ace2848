// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/look.h"
#include "dialogs/dialogstart.h"
#include "hands.h"
#include "support/drivenwindow.h"
#include "support/environment.h"
#include "support/httpurls.h"
#include "update/versioncheck.h"

#include <QApplication>
#include <QDirIterator>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>
#include <QTranslator>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int files = 40;

} // namespace

/// A user without a plan: thousands of clicks, keys, drops, language switches and restarts. Whatever happens,
/// every file stays in its folder with what is in it. ORVANTO_SEED chooses another user, ORVANTO_ACTIONS sets
/// the number.
class Monkey : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<Hands> hands;
    std::unique_ptr<TempTree> tree;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<QTranslator> translator;
    /// What is in a file, and its folder.
    QMap<QByteArray, QString> planted;
    QEventLoop loop;
    int actionsLeft = 0;
    /// Of actions that are in hand: a click that opens a dialog lasts until the dialog is gone.
    int depth = 0;
    bool closed = false;
    QMap<QString, int> did;

    void plant()
    {
        for (int i = 0; i < files; ++i) {
            const QString folder = u"files/%1"_s.arg(i % 4);
            const QByteArray content = "content " + QByteArray::number(i);
            tree->addFile(folder + (i % 3 ? u"/IMG_%1.JPG"_s : u"/note %1.txt"_s).arg(i), content);
            planted.insert(content, tree->path(folder));
        }
    }

    void open()
    {
        window = std::make_unique<DrivenWindow>();
        closed = false;
        window->get()->closed = [this] {
            closed = true;
        };
        installLogMessageHandler();
        window->get()->restoreWindowSettings();
        window->get()->show();
        ++did[u"starts"_s];
    }

    /// Ends the program as it does itself when its window has closed, and starts it again.
    void restart()
    {
        window.reset();
        const QString file = QDir::currentPath() + u"/config/global.xml"_s;
        SettingsStore::instance()->save();
        Localizer::destroy();
        SettingsStore::destroy();
        SettingsStore::instance()->setFilePath(file);
        SettingsStore::instance()->load();
        // Now and then the request for support is asked for again.
        SettingsStore::instance()->setValueByName(u"SupportUsHint"_s, hands->chance(50));
        open();
        if (hands->chance(10))
            DialogStart(window->get(), Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint).exec();
    }

    void switchLanguage()
    {
        static const QStringList codes = {u"de_DE"_s, u"ru_RU"_s, u"ja_JP"_s, u"tr_TR"_s, u"none"_s};
        translator = std::make_unique<QTranslator>();
        if (translator->load(QStringLiteral(LOCALE_FOLDER "/orvanto-%1.qm").arg(hands->oneOf(codes))))
            QCoreApplication::installTranslator(translator.get());
        ++did[u"language switches"_s];
    }

    void drop()
    {
        QStringList paths;
        for (int count = 1 + hands->below(3); count > 0; --count)
            paths.append(tree->path(u"files/%1"_s.arg(hands->below(4))));
        if (hands->chance(20))
            paths = {tree->path(u"files"_s)};
        if (hands->chance(10))
            paths.append({tree->path(u"not there"_s), QString()});
        window->drop(paths);
        ++did[u"drops"_s];
    }

    /// What is on top and takes the user's input.
    [[nodiscard]] QWidget *front() const
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget *dialog = QApplication::activeModalWidget())
            return dialog;
        return window->get();
    }

    void act()
    {
        QWidget *target = front();
        const bool isWindow = target == window->get();
        // Who cancels at once sees no run through: mostly a look is taken, which counts for nothing.
        if (qobject_cast<ProgressDialog *>(target) && !hands->chance(3)) {
            ++actionsLeft;
            return;
        }
        // It shows the files of the whole machine, which are no part of this.
        if (auto *machine = qobject_cast<QFileDialog *>(target)) {
            ++did[u"file dialogs"_s];
            machine->reject();
            return;
        }
        if (!isWindow)
            ++did[QString::fromLatin1(target->metaObject()->className())];
        const int what = hands->below(100);
        if (isWindow && what < 20)
            work(what);
        else if (what < 23)
            switchLanguage();
        else if (what < 26)
            hands->resize(target);
        else if (what < 75)
            hands->click(target);
        else
            hands->type(target);
    }

    /// What a user with a plan does, too.
    void work(int what)
    {
        auto *kinds = window->child<QComboBox>("comboBoxRules");
        if (what < 5)
            drop();
        else if (what < 8)
            window->click("buttonRename");
        else if (what < 13)
            window->click("buttonAddRule");
        else if (what < 18)
            kinds->setCurrentIndex(hands->below(kinds->count()));
        else if (what < 19)
            window->get()->close();
        else if (hands->chance(50))
            changeRules();
        else
            window->click("buttonPreview");
    }

    /// Keys, the check box and a drag of the list of rules.
    void changeRules()
    {
        QTreeWidget *rules = window->ruleTree();
        rules->setFocus();
        if (rules->topLevelItemCount() > 0)
            rules->setCurrentItem(rules->topLevelItem(hands->below(rules->topLevelItemCount())));
        ++did[u"changes of rules"_s];
        static const QList<QKeyCombination> keys = {
            Qt::ALT | Qt::Key_Up,           Qt::ALT | Qt::Key_Down,         Qt::CTRL | Qt::Key_D,
            Qt::NoModifier | Qt::Key_F2,    Qt::NoModifier | Qt::Key_Space, Qt::NoModifier | Qt::Key_Escape,
            Qt::NoModifier | Qt::Key_Delete};
        const QKeyCombination pressed = keys.at(hands->below(int(keys.size())));
        QTest::keyClick(rules, pressed.key(), pressed.keyboardModifiers());
    }

    /// Brings the user back to where nothing is open.
    void leave()
    {
        QWidget *target = front();
        if (target == window->get())
            loop.quit();
        else if (auto *start = qobject_cast<DialogStart *>(target))
            start->accept();
        else
            target->close();
    }

    void step()
    {
        QTimer::singleShot(0, this, &Monkey::step);
        if (closed) {
            if (depth == 0)
                restart();
            else if (QWidget *target = front(); target != window->get())
                leave();
            return;
        }
        ++depth;
        if (actionsLeft > 0) {
            --actionsLeft;
            act();
        } else {
            leave();
        }
        --depth;
        if (depth == 0 && actionsLeft % 25 == 0)
            checkFiles();
    }

    void checkFiles()
    {
        QMap<QByteArray, QString> found;
        QDirIterator all(tree->path(u"files"_s), QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            QFile file(all.next());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            found.insert(file.readAll(), all.fileInfo().absolutePath());
        }
        if (found != planted) {
            QTest::qFail("a file is lost", __FILE__, __LINE__);
            loop.quit();
        }
        ++did[u"looks at the files"_s];
    }

private slots:
    void initTestCase()
    {
        // Nothing reaches the network.
        VersionCheck::service().address = QUrl(u"http://127.0.0.1:9"_s);
        QApplication::setStyle(u"Fusion"_s);
        applyLook();
    }

    void init()
    {
        settings = std::make_unique<TestSettings>();
        tree = std::make_unique<TempTree>();
        // Nothing reaches the user's own desktop. A folder that can be made is one that goes again: root
        // would make any other as well.
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings->tree.path(u"desktop"_s)));
    }

    void cleanup()
    {
        window.reset();
        translator.reset();
        tree.reset();
        settings.reset();
    }

    void nothingBreaksAndNoFileIsLost()
    {
        const OpenedUrls opened({u"http"_s, u"https"_s, u"file"_s, u"mailto"_s});
        const auto seed = static_cast<quint32>(environmentNumber("ORVANTO_SEED", 1));
        const int actions = environmentNumber("ORVANTO_ACTIONS", 4000);
        std::fprintf(stderr, "ORVANTO_SEED=%u ORVANTO_ACTIONS=%d\n", seed, actions);
        hands = std::make_unique<Hands>(seed);
        plant();
        open();
        actionsLeft = actions;
        QTimer::singleShot(0, this, &Monkey::step);
        loop.exec();
        checkFiles();
        const QStringList before = tree->names(u"files/0"_s);
        for (auto job = did.cbegin(); job != did.cend(); ++job)
            std::fprintf(stderr, "  %6d %s\n", job.value(), qPrintable(job.key()));
        std::fprintf(stderr, "  %s\n", qPrintable(before.join(u", "_s)));
        if (actions < 2000)
            return;
        // A user who gets nowhere would prove nothing.
        for (const char *job : {"starts", "drops", "language switches", "looks at the files", "QMenu",
                                "changes of rules", "DialogSettings", "QMessageBox", "ProgressDialog"})
            QVERIFY2(did.value(QString::fromLatin1(job)) > 1, job);
        QVERIFY2(!before.contains(u"IMG_4.JPG"_s), "no file was ever renamed");
    }
};

QTEST_MAIN(Monkey)
#include "tst_monkey.moc"
