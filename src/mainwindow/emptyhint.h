// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemView>

/// Says on an empty list what to do with it, to the eye and to screen readers; gone as soon as there is a
/// row. What is dropped on it is dropped on the list.
class EmptyHint final : public QWidget
{
    Q_OBJECT

public:
    /// Asks for the text now and whenever the language changes.
    EmptyHint(QAbstractItemView *ofView, std::function<QString()> inCurrentLanguage);

    [[nodiscard]] QString text() const { return shown; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void retranslate();
    void follow();
    void tell();

    QAbstractItemView *view;
    std::function<QString()> translated;
    QString shown;
};
