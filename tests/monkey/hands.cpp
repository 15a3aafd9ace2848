// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "hands.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QPointer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// None has a separator: files are looked for where they were, and a name may not carry them out of there.
const QStringList &texts()
{
    static const QStringList list = {u"a"_s,    u"IMG"_s,     u"new_"_s,         u"."_s,
                                     u".."_s,   u"*"_s,       u"(\\d+)"_s,       u"\\1\\2"_s,
                                     u"("_s,    u"[a-"_s,     u"(a*)*b"_s,       u"\\"_s,
                                     u"%1"_s,   u"'|\""_s,    u"<b>&amp;</b>"_s, u"*.txt;*.JPG"_s,
                                     u"日本"_s, u"é\u0301"_s, u"\u202egnp"_s,    u"\U0001F600"_s,
                                     u"7"_s,    u"-1"_s,      u"99999999999"_s,  QString(300, u'x')};
    return list;
}

struct Key
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

constexpr Key keys[] = {{Qt::Key_Tab},
                        {Qt::Key_Backtab},
                        {Qt::Key_Return},
                        {Qt::Key_Space},
                        {Qt::Key_Escape},
                        {Qt::Key_Delete},
                        {Qt::Key_F8},
                        {Qt::Key_F8, Qt::ShiftModifier},
                        {Qt::Key_Backspace},
                        {Qt::Key_Up},
                        {Qt::Key_Down},
                        {Qt::Key_Left},
                        {Qt::Key_Right},
                        {Qt::Key_Home},
                        {Qt::Key_End},
                        {Qt::Key_PageUp},
                        {Qt::Key_PageDown},
                        {Qt::Key_A, Qt::ControlModifier},
                        {Qt::Key_V, Qt::ControlModifier},
                        {Qt::Key_X, Qt::ControlModifier},
                        {Qt::Key_Z, Qt::ControlModifier},
                        {Qt::Key_G, Qt::ControlModifier},
                        {Qt::Key_L, Qt::ControlModifier},
                        {Qt::Key_E, Qt::ControlModifier},
                        {Qt::Key_Menu}};

} // namespace

Hands::Hands(quint32 seed)
    : generator(seed)
{
}

void Hands::click(QWidget *window)
{
    QList<QWidget *> within = {window};
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->isEnabled() && !widget->size().isEmpty() &&
            widget->window() == window)
            within.append(widget);
    }
    QWidget *target = within.at(below(int(within.size())));
    const QPoint place(below(std::max(1, target->width())), below(std::max(1, target->height())));
    const Qt::KeyboardModifiers modifiers = chance(10)   ? Qt::ControlModifier
                                            : chance(10) ? Qt::ShiftModifier
                                                         : Qt::NoModifier;
    if (chance(8)) {
        QTest::mouseDClick(target, Qt::LeftButton, modifiers, place);
        return;
    }
    if (chance(6)) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, target->mapToGlobal(place));
        QCoreApplication::sendEvent(target, &event);
        return;
    }
    QTest::mouseClick(target, Qt::LeftButton, modifiers, place);
}

void Hands::type(QWidget *window)
{
    QPointer<QWidget> target = window->focusWidget() ? window->focusWidget() : window;
    if (chance(40)) {
        // As an input method does it: most of the characters are on no key.
        QInputMethodEvent event;
        event.setCommitString(oneOf(texts()));
        QCoreApplication::sendEvent(target, &event);
        return;
    }
    for (int count = 1 + below(3); count > 0 && target; --count) {
        const Key &key = keys[below(std::size(keys))];
        QTest::keyClick(target, key.key, key.modifiers);
    }
}

void Hands::resize(QWidget *window)
{
    window->resize(50 + below(1600), 50 + below(1200));
}
