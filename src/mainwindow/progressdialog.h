// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;

/// The modal wait dialog. Cancelling merely hides it; who shows it polls for that.
class ProgressDialog final : public QDialog
{
    Q_OBJECT

public:
    enum Page { ProgressPage, TextPage };
    /// Any other mode is text mode.
    static constexpr int progressMode = 1;

    /// Shows the progress page; mode and total are the user's to set.
    explicit ProgressDialog(QWidget *parent);

    /// In progress mode the bar shows current x 100 / total, 100 at most, and 0 while total is 0. In text
    /// mode the item is only remembered.
    void setProgress(int current);
    /// Sets the bar's value, 0 to 100, and paints it 25 times a second at most.
    void showValue(int percent);

    int mode = 0;
    /// The item last reported.
    int current = 0;
    int total = 0;
    QPushButton *buttonCancel;
    QLabel *labelText;
    QProgressBar *progressBar;
    QStackedWidget *stackedWidget;

private:
    QElapsedTimer sincePainted;
};
