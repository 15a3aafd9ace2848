// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/parameters.h"

#include <QWidget>

class QSpinBox;

/// The editor of one rule kind: follows the language by setting all its texts anew.
class RuleWidget : public QWidget
{
    Q_OBJECT

public:
    explicit RuleWidget(QWidget *parent);

    /// Sets every text of the editor in the current language.
    virtual void retranslateUi() = 0;

protected:
    /// Lets the spin box take what the parameter may be; it starts at its least.
    static void setRange(QSpinBox *spinBox, Range range);
    void changeEvent(QEvent *event) override;
};
