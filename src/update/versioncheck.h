// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>
#include <QVariant>

#include <chrono>
#include <functional>

class QMessageBox;
class QWidget;

/// Asks the update service once whether there is a newer version, tells the user, and deletes itself.
///
/// The service is not trusted. A reply of more than maxReplySize bytes, or one that has not ended
/// Service::replyTime after the request (its headers may be what never ends), is cut off and counts as a
/// transmission failure. Lines of more than maxLineLength bytes are ignored. Bytes that are not UTF-8 become
/// replacement characters, markup is shown as text, redirects are not followed, and addresses that are not
/// http or https are not opened.
class VersionCheck final : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 maxReplySize = 65536;
    static constexpr qint64 maxLineLength = 2048;

    struct Service
    {
        /// Scheme, host and port; the path is always "/".
        QUrl address;
        /// Long: a slow service is no broken one.
        std::chrono::milliseconds replyTime;
    };
    /// The service that checks made from now on ask.
    static Service &service();

    /// parent: the widget that message boxes belong to; may go away at any time, and this with it.
    explicit VersionCheck(QObject *parent);

    /// Whether the parent is in the middle of work that a box would hold up: that of an automatic check waits
    /// until it is not. Empty: never.
    std::function<bool()> isParentBusy;

public slots:
    /// Unless forced by the user, asks once per calendar day at most and stays silent about everything but a
    /// new version that was not skipped.
    void check(bool forced);
    void onFinished(QNetworkReply *reply);

private:
    using Answer = QMap<QString, QVariant>;

    void watch(QNetworkReply *reply);
    void cutOff(QNetworkReply *reply);
    [[nodiscard]] static Answer readAnswer(QNetworkReply *reply);
    void reportFailure(const QString &reason);
    void reportSuccess(const Answer &answer);
    void showWhenIdle(const Answer &answer);
    [[nodiscard]] QMessageBox *createBox();
    void showNewVersion(const Answer &answer);
    void showUpToDate();
    [[nodiscard]] QWidget *parentWidget() const;

    QNetworkAccessManager *manager;
    bool isForced = false;
    bool isCutOff = false;
};
