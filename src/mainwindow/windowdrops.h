// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ListWidgetFiles;
class QDropEvent;
class QWidget;

/// Lets files be dropped anywhere on the window as on the list, but on the explorer that they were dragged
/// from, and but for what the list of rules takes itself.
class WindowDrops final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the list's window, all of whose text fields are there.
    WindowDrops(ListWidgetFiles &listOfFiles, const QWidget *explorerTree);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isBackOnExplorer(const QDropEvent &event) const;
    void enter(const QObject *watched, QDropEvent *event) const;
    void answer(QDropEvent *event) const;
    void take(QDropEvent *event);

    QWidget *window;
    ListWidgetFiles &list;
    const QWidget *explorer;
};
