// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>

class FaderWidget;

namespace Ui {
class DialogSettings;
}

/// "Global Settings". The check boxes are written by save() only; starting with the system and the language
/// change at once, whatever becomes of the dialog.
class DialogSettings final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogSettings(QWidget *parent, Qt::WindowFlags flags = {});
    ~DialogSettings() override;

    /// Writes the six check boxes that stand for settings to the settings store.
    void save() const;
    /// Sets the six check boxes from the settings store.
    void load();

private slots:
    void onInfoButtonClicked(int id);
    void retranslate();
    void on_pushButtonUpdate_clicked();
    void on_pushButtonDonate_clicked();
    void checkBoxEnableAutoStart();
    void showValidationBox(bool isOkay);
    void fadeInWidget(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectWidgets();
    void mapInfoButtons();

    QPointer<FaderWidget> fader;
    std::unique_ptr<Ui::DialogSettings> ui;
};
