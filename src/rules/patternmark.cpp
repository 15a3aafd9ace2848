// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/patternmark.h"

#include "naming/regexp.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int pauseInTyping = 300; // milliseconds

QString problemOf(const QString &pattern)
{
    switch (RegExp(pattern).verdict()) {
    case RegExp::Verdict::Invalid:
        return QCoreApplication::translate("Rules", "No valid pattern: it will change nothing.");
    case RegExp::Verdict::TooSlow:
        return QCoreApplication::translate("Rules",
                                           "This pattern would take too long: it will change nothing.");
    case RegExp::Verdict::Usable:
        break;
    }
    return {};
}

} // namespace

PatternMark::PatternMark(QLineEdit *lineEdit, QAbstractButton *patternButton)
    : QObject(lineEdit)
    , edit(lineEdit)
    , button(patternButton)
{
    pause.setSingleShot(true);
    pause.setInterval(pauseInTyping);
    connect(&pause, &QTimer::timeout, this, &PatternMark::refresh);
    connect(button, &QAbstractButton::toggled, this, &PatternMark::refresh);
    connect(edit, &QLineEdit::textChanged, this, [this] {
        if (button->isChecked())
            pause.start();
    });
}

void PatternMark::refresh()
{
    pause.stop();
    show(button->isChecked() ? problemOf(edit->text()) : QString());
}

void PatternMark::show(const QString &problem)
{
    edit->setToolTip(problem);
    edit->setAccessibleDescription(problem);
    if (problem.isEmpty()) {
        delete mark;
        mark = nullptr;
        return;
    }
    if (!mark)
        mark = edit->addAction(QIcon(u":/img/warning.png"_s), QLineEdit::TrailingPosition);
    mark->setToolTip(problem);
}
