// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

/// Takes the desktop's place for the given schemes and keeps what would have been opened.
class OpenedUrls final : public QObject
{
    Q_OBJECT

public:
    explicit OpenedUrls(const QStringList &handled)
        : schemes(handled)
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    ~OpenedUrls() override
    {
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> urls;

public slots:
    void open(const QUrl &url) { urls.append(url); }

private:
    QStringList schemes;
};
