// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/rule.h"
#include "rules/ruledata.h"
#include "unit/support/brackettranslator.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QMetaEnum>
#include <QTest>
#include <QVariant>
#include <QWidget>

#include <memory>

/// "QLabel:Position" for a label or button, "QSpinBox" for a widget that shows no text of its own.
inline QString widgetLine(const QWidget *widget)
{
    const QString kind = QString::fromLatin1(widget->metaObject()->className());
    const bool isInput = kind == u"QSpinBox" || kind == u"QLineEdit";
    const QString text = isInput ? QString() : widget->property("text").toString();
    return text.isEmpty() ? kind : kind + u':' + text;
}

inline QStringList childLines(const QWidget &editor)
{
    QStringList lines;
    const auto children = editor.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children)
        lines.append(widgetLine(child));
    return lines;
}

inline QString policyName(QSizePolicy::Policy policy)
{
    return QString::fromLatin1(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(policy));
}

inline QString itemLine(QLayoutItem *item)
{
    if (const QWidget *widget = item->widget())
        return widgetLine(widget);
    if (QSpacerItem *spacer = item->spacerItem()) {
        const QSizePolicy policy = spacer->sizePolicy();
        return QStringLiteral("spacer %1x%2 %3 %4")
            .arg(spacer->sizeHint().width())
            .arg(spacer->sizeHint().height())
            .arg(policyName(policy.horizontalPolicy()), policyName(policy.verticalPolicy()));
    }
    QLayout *inner = item->layout();
    QStringList parts;
    for (int i = 0; i < inner->count(); ++i)
        parts.append(itemLine(inner->itemAt(i)));
    return QString::fromLatin1(inner->metaObject()->className()) + u'(' + parts.join(QStringLiteral(", ")) +
           u')';
}

/// "row,column item" for each filled cell of the editor's grid, row by row. An item that spans cells is named
/// in each of them.
inline QStringList gridLines(const QWidget &editor)
{
    const auto *grid = qobject_cast<const QGridLayout *>(editor.layout());
    if (!grid)
        return {QStringLiteral("no grid")};
    QStringList lines;
    for (int row = 0; row < grid->rowCount(); ++row) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            if (QLayoutItem *item = grid->itemAtPosition(row, column))
                lines.append(QStringLiteral("%1,%2 %3").arg(row).arg(column).arg(itemLine(item)));
        }
    }
    return lines;
}

/// Whether the editor shows bracketed texts once a translator is installed, and its own again without it.
inline void verifyFollowsLanguage(QWidget &editor)
{
    const QStringList before = childLines(editor);
    QStringList translated;
    {
        const BracketTranslator translator;
        QCoreApplication::processEvents();
        translated = childLines(editor);
    }
    for (qsizetype i = 0; i < before.size(); ++i) {
        const QString text = before.at(i).section(u':', 1);
        const QString expected =
            text.isEmpty() ? before.at(i) : before.at(i).section(u':', 0, 0) + u":[" + text + u']';
        QCOMPARE(translated.at(i), expected);
    }
    QVERIFY(translated != before);
    QCoreApplication::processEvents();
    QCOMPARE(childLines(editor), before);
}

/// A LanguageChange event is taken as handled, any other change is left as it was.
inline void verifyAcceptsLanguageChange(QWidget &editor)
{
    QEvent languageChange(QEvent::LanguageChange);
    languageChange.ignore();
    QCoreApplication::sendEvent(&editor, &languageChange);
    QVERIFY(languageChange.isAccepted());

    QEvent other(QEvent::EnabledChange);
    other.ignore();
    QCoreApplication::sendEvent(&editor, &other);
    QVERIFY(!other.isAccepted());
}

/// The parameters that the rule reads from the editor.
template <typename Parameters>
Parameters captured(const Rule &rule, const QWidget &editor)
{
    const std::unique_ptr<RuleData> data(rule.createData(&editor));
    Q_ASSERT(data && data->rule == &rule);
    return std::get<Parameters>(data->parameters);
}
