// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <functional>

/// Waits for the next modal dialog of this test and answers it, once. A dialog that the answer leaves open is
/// rejected, so that a failed check inside cannot hang the test.
class ModalAnswer : public QObject
{
public:
    enum After { Reject, LeaveOpen };

    explicit ModalAnswer(std::function<void(QDialog *)> answer, After after = Reject)
        : callback(std::move(answer))
        , then(after)
    {
        connect(&timer, &QTimer::timeout, this, &ModalAnswer::look);
        timer.start(2);
    }

    [[nodiscard]] bool isDone() const { return done; }

private:
    void look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || dialog->property("answered").toBool())
            return;
        timer.stop();
        done = true;
        dialog->setProperty("answered", true);
        const QPointer<QDialog> guard(dialog);
        callback(dialog);
        if (guard && guard->isVisible() && then == Reject)
            guard->reject();
    }

    std::function<void(QDialog *)> callback;
    After then;
    QTimer timer;
    bool done = false;
};

/// Answers the next message box with one of its buttons (by a mouse-like click) and keeps what it showed.
class BoxAnswer final : public ModalAnswer
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
        : ModalAnswer([this, button](QDialog *dialog) { read(dialog, button); })
    {
    }

    QString title;
    QString text;
    QString informativeText;
    QString objectName;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QWidget *parent = nullptr;
    QMessageBox::StandardButtons standardButtons;
    QMap<QMessageBox::StandardButton, QString> buttonTexts;
    QString defaultButton;
    bool areIconsOf24 = true;
    bool hasContextHelp = true;

private:
    void read(QDialog *dialog, QMessageBox::StandardButton button)
    {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (!box)
            return;
        title = box->windowTitle();
        text = box->text();
        informativeText = box->informativeText();
        objectName = box->objectName();
        icon = box->icon();
        format = box->textFormat();
        parent = box->parentWidget();
        standardButtons = box->standardButtons();
        hasContextHelp = box->windowFlags().testFlag(Qt::WindowContextHelpButtonHint);
        if (box->defaultButton())
            defaultButton = box->defaultButton()->text();
        const QList<QAbstractButton *> buttons = box->buttons();
        for (const QAbstractButton *each : buttons) {
            buttonTexts[box->standardButton(const_cast<QAbstractButton *>(each))] = each->text();
            areIconsOf24 = areIconsOf24 && each->iconSize() == QSize(24, 24);
        }
        if (button == QMessageBox::NoButton)
            box->close();
        else if (QAbstractButton *wanted = box->button(button))
            wanted->click();
    }
};
