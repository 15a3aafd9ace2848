// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QRadioButton;
class QSpinBox;
class QWidget;

/// The choice between "Start" and "End" that three editors share, with its label.
struct DirectionBox
{
    /// The widgets are children of editor; "Start" is checked.
    explicit DirectionBox(QWidget *editor);

    /// Puts the label into column 0 and the buttons into column 1 of the row.
    void addTo(QGridLayout *layout, int row) const;
    void retranslateUi() const;
    [[nodiscard]] bool isFromStart() const;

    QRadioButton *radioButtonStart;
    QRadioButton *radioButtonEnd;
    QLabel *labelDirection = nullptr; ///< made by createLabel(), after the editor's other labels
    void createLabel(QWidget *editor);
};

/// The translated word for a direction, as rule descriptions show it.
[[nodiscard]] QString directionName(bool fromStart);

/// A spin box of an editor, at its minimum.
[[nodiscard]] QSpinBox *createSpinBox(QWidget *editor, int minimum, int maximum);
