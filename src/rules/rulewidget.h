// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// The editor of one rule kind: follows the language by setting all its texts anew.
class RuleWidget : public QWidget
{
    Q_OBJECT

public:
    explicit RuleWidget(QWidget *parent);

    /// Sets every text of the editor in the current language.
    virtual void retranslateUi() = 0;

protected:
    void changeEvent(QEvent *event) override;
};
