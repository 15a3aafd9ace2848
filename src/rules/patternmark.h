// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

class QAbstractButton;
class QAction;
class QLineEdit;

/// While a button is down, marks the pattern in a line edit that will change nothing, and says why in its
/// tool tip. It looks when the typing pauses: a verdict may take some tenths of a second.
class PatternMark final : public QObject
{
    Q_OBJECT

public:
    PatternMark(QLineEdit *lineEdit, QAbstractButton *patternButton);

    /// Sets the mark and its text in the current language.
    void refresh();

private:
    void show(const QString &problem);

    QLineEdit *edit;
    QAbstractButton *button;
    QAction *mark = nullptr;
    QTimer pause{this};
};
