// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow/fileitem.h"
#include "run/journalfolder.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/modalanswer.h"

#include <QAction>
#include <QLabel>
#include <QTest>

inline const auto putBack = QStringLiteral("Put everything back");
inline const auto keep = QStringLiteral("Keep what is done");
inline const auto renameRest = QStringLiteral("Rename what can be");
inline const auto settingName = QStringLiteral("Run.AllOrNothing");

/// Answers every message box with the button that has one of the wanted texts, otherwise with "Close".
class ButtonPresser final
{
public:
    ButtonPresser()
    {
        timer.callOnTimeout([this] { answer(); });
        timer.start(0);
    }
    Q_DISABLE_COPY_MOVE(ButtonPresser)

    QList<SeenBox> seen;
    QStringList wanted;

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        seen.append(SeenBox(*box));
        QAbstractButton *pressed = box->button(QMessageBox::Ok);
        if (!pressed)
            pressed = box->escapeButton();
        const auto buttons = box->buttons();
        for (QAbstractButton *button : buttons)
            pressed = wanted.contains(button->text()) ? button : pressed;
        pressed->click();
    }

    QTimer timer;
};

/// For tests of runs that rename all files or none; without slots, which the tests have themselves.
class PlannedWindowTest : public QObject
{
protected:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<ButtonPresser> boxes;
    TempTree *tree = nullptr;

    void openWindow()
    {
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        window->get()->show();
    }
    [[nodiscard]] QAction *entry() const { return window->child<QAction>("actionAllOrNothing"); }
    [[nodiscard]] QLabel *mark() const
    {
        return window->get()->findChild<QLabel *>(QStringLiteral("labelAllOrNothing"));
    }
    [[nodiscard]] QString told() const { return window->child<QLabel>("labelForecast")->text(); }
    void run() const { window->click("buttonRename"); }
    void preview() const
    {
        window->click("buttonPreview");
        QTRY_VERIFY(told() != QStringLiteral("checking…"));
    }
    [[nodiscard]] QStringList fates() const
    {
        QStringList ids;
        for (int row = 0; row < window->files()->count(); ++row)
            ids.append(window->files()->item(row)->data(FileItem::FateRole).toString());
        return ids;
    }
    [[nodiscard]] QStringList paths(const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names)
            paths.append(tree->path(QStringLiteral("dir/") + name));
        return paths;
    }
    /// Files, each with its name in it.
    void drop(const QStringList &names) const
    {
        for (const QString &name : names)
            tree->addFile(QStringLiteral("dir/") + name, name.toUtf8());
        window->drop(paths(names));
    }
    /// What is in the folder: the files' new names and their first ones.
    [[nodiscard]] QStringList folder() const
    {
        QStringList files;
        const QStringList names = tree->names(QStringLiteral("dir"));
        for (const QString &name : names)
            files.append(name + u'=' + QString::fromUtf8(tree->content(QStringLiteral("dir/") + name)));
        return files;
    }
    /// "a" and "b" get each other's name.
    void addSwap() const
    {
        window->addReplace(QStringLiteral("a"), QStringLiteral("?"));
        window->addReplace(QStringLiteral("b"), QStringLiteral("a"));
        window->addReplace(QStringLiteral("?"), QStringLiteral("b"));
    }
    /// "a" gets the name of "b", "b" that of "c", and "c" that of "a".
    void addRing() const
    {
        window->addReplace(QStringLiteral("a"), QStringLiteral("?"));
        window->addReplace(QStringLiteral("c"), QStringLiteral("a"));
        window->addReplace(QStringLiteral("b"), QStringLiteral("c"));
        window->addReplace(QStringLiteral("?"), QStringLiteral("b"));
    }
    /// "000" becomes "001", and so on: every file but the last waits for the next one's name.
    void addShift() const
    {
        window->addTrim(0, 3);
        window->addEnumerate(1, 2);
    }
    /// Presses Cancel when so many rows are renamed.
    [[nodiscard]] DuringEvents cancelAfter(int rows) const
    {
        return DuringEvents([this, rows](int) {
            ProgressDialog *dialog = window->waitDialog();
            if (dialog && !dialog->isHidden() && dialog->current == rows && dialog->buttonCancel->isVisible())
                dialog->buttonCancel->click();
        });
    }
    [[nodiscard]] QList<JournalInfo> journals() const
    {
        return JournalFolder(tree->path(QStringLiteral("undo"))).list();
    }
    [[nodiscard]] const SeenBox &report() const { return boxes->seen.constLast(); }

    void setUp()
    {
        settings = std::make_unique<TestSettings>();
        tree = &settings->tree;
        openWindow();
        boxes = std::make_unique<ButtonPresser>();
    }
    void tearDown()
    {
        QVERIFY(window->pathsAgree());
        QVERIFY(!window->waitDialog());
        boxes.reset();
        window.reset();
        settings.reset();
    }
};
