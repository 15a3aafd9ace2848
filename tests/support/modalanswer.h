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

/// What a message box showed when it was answered.
struct SeenBox
{
    QString title;
    QString text;
    QString informativeText;
    QString objectName;
    QString styleSheet;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QWidget *parent = nullptr;
    QMessageBox::StandardButtons buttons;
    QMap<QMessageBox::StandardButton, QString> buttonTexts;
    QMap<QMessageBox::StandardButton, QIcon> buttonIcons;
    QString defaultButton;
    bool areIconsOf24 = true;
    bool hasContextHelp = true;

    SeenBox() = default;
    explicit SeenBox(const QMessageBox &box)
        : title(box.windowTitle())
        , text(box.text())
        , informativeText(box.informativeText())
        , objectName(box.objectName())
        , styleSheet(box.styleSheet())
        , icon(box.icon())
        , format(box.textFormat())
        , parent(box.parentWidget())
        , buttons(box.standardButtons())
        , defaultButton(box.defaultButton() ? box.defaultButton()->text() : QString())
        , hasContextHelp(box.windowFlags().testFlag(Qt::WindowContextHelpButtonHint))
    {
        const QList<QAbstractButton *> all = box.buttons();
        for (QAbstractButton *button : all) {
            const QMessageBox::StandardButton which = box.standardButton(button);
            buttonTexts[which] = button->text();
            buttonIcons[which] = button->icon();
            areIconsOf24 = areIconsOf24 && button->iconSize() == QSize(24, 24);
        }
    }
};

/// Answers the next message box with one of its buttons (by a mouse-like click) and keeps what it showed.
class BoxAnswer final : public ModalAnswer, public SeenBox
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
        : ModalAnswer([this, button](QDialog *dialog) { read(dialog, button); })
    {
    }

    using SeenBox::objectName;
    using SeenBox::parent;

private:
    void read(QDialog *dialog, QMessageBox::StandardButton button)
    {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (!box)
            return;
        static_cast<SeenBox &>(*this) = SeenBox(*box);
        if (button == QMessageBox::NoButton)
            box->close();
        else if (QAbstractButton *wanted = box->button(button))
            wanted->click();
    }
};

/// Answers every message box that opens while it lives with its first button, and remembers it.
class BoxAnswerer final
{
public:
    BoxAnswerer()
    {
        timer.setInterval(0);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { answer(); });
        timer.start();
    }
    Q_DISABLE_COPY_MOVE(BoxAnswerer)

    QList<SeenBox> seen;
    /// Called with the open box before it is answered.
    std::function<void(QMessageBox *)> beforeAnswer;

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        // beforeAnswer may process events and come here again.
        if (!box || answering)
            return;
        answering = true;
        QAbstractButton *button = box->buttons().constFirst();
        seen.append(SeenBox(*box));
        if (beforeAnswer)
            beforeAnswer(box);
        button->click();
        answering = false;
    }

    QTimer timer;
    bool answering = false;
};
