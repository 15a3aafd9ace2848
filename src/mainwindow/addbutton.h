// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFileDialog>
#include <QUrl>

class ListWidgetFiles;
class QAction;
class QMenu;
class QToolButton;

/// The ways into the list that need no mouse: the button whose menu asks for files or a folder, with its
/// keys, and Ctrl+V, which is a text field's own while it has the focus. The list gets what they give as it
/// gets a drop.
class AddButton final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window of the button.
    AddButton(QToolButton *addButton, ListWidgetFiles &listOfFiles);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void retranslate();
    void openMenu();
    void add(QFileDialog::FileMode mode);
    void paste();
    [[nodiscard]] QList<QUrl> ask(QFileDialog::FileMode mode);
    void handOver(const QList<QUrl> &files);

    QToolButton *button;
    ListWidgetFiles &list;
    QMenu *menu;
    QAction *actionAddFiles;
    QAction *actionAddFolder;
    QAction *actionPaste;
    /// Where the last dialog ended.
    QString folder = QDir::homePath();
};
