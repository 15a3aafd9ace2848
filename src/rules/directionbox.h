// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

class QLabel;
class QRadioButton;

/// The choice between "Start" and "End" that three editors share, with its label.
struct DirectionBox
{
    void retranslateUi() const;
    [[nodiscard]] bool isFromStart() const;

    QRadioButton *radioButtonStart;
    QRadioButton *radioButtonEnd;
    QLabel *labelDirection;
};
