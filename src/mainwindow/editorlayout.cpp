// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/editorlayout.h"

#include <QEvent>
#include <QGridLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

int widthOfLabels(const QGridLayout *grid)
{
    int width = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
        if (const QLayoutItem *item = grid->itemAtPosition(row, 0))
            width = std::max(width, item->sizeHint().width());
    }
    return width;
}

/// The fields of an editor in the order in which Tab goes through them.
QWidgetList fieldsOf(const QWidget *editor)
{
    QWidgetList fields;
    for (QWidget *next = editor->nextInFocusChain(); next != editor; next = next->nextInFocusChain()) {
        if (editor->isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus && !next->focusProxy())
            fields.append(next);
    }
    // Where they stand in a column that is what the eye follows.
    if (auto *column = qobject_cast<QVBoxLayout *>(editor->layout())) {
        std::stable_sort(fields.begin(), fields.end(), [column](QWidget *one, QWidget *other) {
            return column->indexOf(one) < column->indexOf(other);
        });
    }
    return fields;
}

} // namespace

EditorLayout::EditorLayout(QStackedWidget *ofEditors)
    : QObject(ofEditors)
    , editors(ofEditors)
{
    editors->installEventFilter(this);
    // Labels and spin boxes would share the room that is left over.
    const auto grids = editors->findChildren<QGridLayout *>();
    for (QGridLayout *grid : grids)
        grid->setColumnStretch(1, 1);
    align();
}

void EditorLayout::orderTabs(QWidget *before, QWidget *after) const
{
    QWidget *last = before;
    for (int page = 0; page < editors->count(); ++page) {
        const QWidgetList fields = fieldsOf(editors->widget(page));
        for (QWidget *field : fields) {
            QWidget::setTabOrder(last, field);
            last = field;
        }
    }
    QWidget::setTabOrder(last, after);
}

bool EditorLayout::eventFilter(QObject *watched, QEvent *event)
{
    // Another language, or another font.
    if (event->type() == QEvent::LayoutRequest)
        align();
    return QObject::eventFilter(watched, event);
}

void EditorLayout::align() const
{
    const auto grids = editors->findChildren<QGridLayout *>();
    int width = 0;
    for (const QGridLayout *grid : grids)
        width = std::max(width, widthOfLabels(grid));
    for (QGridLayout *grid : grids) {
        if (grid->columnMinimumWidth(0) != width)
            grid->setColumnMinimumWidth(0, width);
    }
}
