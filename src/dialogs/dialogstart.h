// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPoint>
#include <QPointer>

#include <memory>

class FaderWidget;

namespace Ui {
class DialogStart;
}

/// The welcome on the first start: language, then greeting and the choice of automatic version checks, which
/// the destructor saves. It closes only by "&Next" on its last page.
class DialogStart final : public QDialog
{
    Q_OBJECT

public:
    /// Shows itself at once. Deliberate: filling the list of languages installs and saves the selected one.
    DialogStart(QWidget *parent, Qt::WindowFlags flags);
    ~DialogStart() override;

private slots:
    void retranslate();
    void buttonNextPressed();
    void fadeInWidget(int index);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setWelcomeText();

    QPointer<FaderWidget> fader;
    std::unique_ptr<Ui::DialogStart> ui;
    bool finished = false;
    /// From the frame's top-left corner to the pressed point.
    QPoint dragPosition;
};
