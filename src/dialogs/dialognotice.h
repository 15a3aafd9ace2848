// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

class QCheckBox;
class QLabel;
class QPixmap;
class QTimer;

namespace Ui {
class DialogNotice;
}

/// A piece of advice with a picture, which closes itself after 15 seconds.
class DialogNotice final : public QDialog
{
    Q_OBJECT

public:
    DialogNotice(QWidget *parent, const QPixmap &pixmap);
    ~DialogNotice() override;

    /// Shows the message; rich text with links is welcome.
    [[nodiscard]] QLabel *labelAdvice() const;
    /// "Don't show this message again."
    [[nodiscard]] QCheckBox *checkBox() const;

private slots:
    void updateInterval();
    void linkClicked(const QString &link);

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::DialogNotice> ui;
    QTimer *timer;
    /// Seconds left.
    int interval;
};
