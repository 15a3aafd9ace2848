// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QtGlobal>

/// Takes over Qt's message channel and keeps what arrives.
class MessageCatcher final
{
public:
    MessageCatcher()
        : previous(qInstallMessageHandler(&MessageCatcher::take))
    {
        caught().clear();
    }
    ~MessageCatcher() { qInstallMessageHandler(previous); }
    Q_DISABLE_COPY_MOVE(MessageCatcher)

    [[nodiscard]] static QStringList messages() { return caught(); }

private:
    static QStringList &caught()
    {
        static QStringList list;
        return list;
    }
    static void take(QtMsgType, const QMessageLogContext &, const QString &text) { caught().append(text); }

    QtMessageHandler previous;
};
