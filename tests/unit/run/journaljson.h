// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

/// What Qt reads in a line.
inline QJsonObject document(const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("%s: %s", qPrintable(error.errorString()), line.constData());
    return document.object();
}

/// A line without its newline.
inline QByteArray inside(const QByteArray &line)
{
    return line.endsWith('\n') && line.count('\n') == 1 ? line.chopped(1) : QByteArray();
}
