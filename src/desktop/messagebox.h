// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>

/// A message box as all of this program's are: titled with the program's name, without a context-help button.
/// Meant for execMessageBox(), which deletes it.
[[nodiscard]] QMessageBox *createMessageBox(QWidget *parent, QMessageBox::Icon icon);

/// Adds a standard button, which keeps its role, under another text and with a picture of 24 x 24.
QPushButton *addMessageButton(QMessageBox *box, QMessageBox::StandardButton button, const QString &text,
                              const QString &iconPath);

/// Gives the box its only button: Ok, under the text for "Close".
void addCloseButton(QMessageBox *box, const QString &text);

/// Runs the box modally, schedules its deletion and returns the standard button pressed. NoButton when the
/// box was destroyed meanwhile, with its parent perhaps: look after your own "this" then.
int execMessageBox(QMessageBox *box);
