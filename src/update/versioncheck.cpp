// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "update/versioncheck.h"

#include "core/maker.h"
#include "core/settingsstore.h"
#include "desktop/messagebox.h"

#include <QCoreApplication>
#include <QDate>
#include <QDebug>
#include <QDesktopServices>
#include <QLocale>
#include <QNetworkReply>
#include <QPushButton>
#include <QTimer>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

const auto dateFormat = u"dd.MM.yyyy"_s;
const auto boxName = u"version_check"_s;
// The service chooses these texts: a long one would push the buttons off the screen.
constexpr qsizetype maxReasonLength = 200;
constexpr qsizetype maxVersionLength = 100;
constexpr std::chrono::milliseconds busyPause(250);

QByteArray requestBody()
{
    const QString name = QCoreApplication::applicationName().trimmed().toLower().replace(u' ', u'_');
    const std::pair<QString, QString> fields[] = {
        {u"itm_name"_s, name},
        {u"itm_vers"_s, QCoreApplication::applicationVersion()},
        // Deliberate: the same two on every system.
        {u"sys_type"_s, u"windows"_s},
        {u"sys_arch"_s, u"x64"_s},
        {u"usr_lang"_s, QLocale::system().name()},
    };
    QUrlQuery query;
    for (const auto &[key, value] : fields)
        query.addQueryItem(key, QString::fromLatin1(QUrl::toPercentEncoding(value)));
    return query.toString(QUrl::FullyEncoded).toLatin1();
}

void openWebAddress(const QString &text)
{
    const QUrl url(text);
    if (url.scheme() == "http"_L1 || url.scheme() == "https"_L1)
        QDesktopServices::openUrl(url);
}

} // namespace

VersionCheck::Service &VersionCheck::service()
{
    static Service theService{QUrl(Maker::updateUrl()), std::chrono::minutes(10)};
    return theService;
}

VersionCheck::VersionCheck(QObject *parent)
    : QObject(parent)
    , manager(new QNetworkAccessManager(this))
{
    // Queued: a box runs an event loop in which this and the reply may be destroyed, and the reply still has
    // work to do after it has emitted the signal.
    connect(manager, &QNetworkAccessManager::finished, this, &VersionCheck::onFinished, Qt::QueuedConnection);
}

void VersionCheck::check(bool forced)
{
    isForced = forced;
    if (!isForced) {
        const QString last =
            SettingsStore::instance()->value(SettingKey::VersionCheckLast, QVariant()).toString();
        if (QDate::fromString(last, dateFormat) == QDate::currentDate()) {
            deleteLater();
            return;
        }
    }
    QUrl address = service().address;
    address.setPath(u"/"_s);
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    watch(manager->post(request, requestBody()));
}

void VersionCheck::watch(QNetworkReply *reply)
{
    // Twice the limit, so that the reply never waits for room before it is seen to be too large.
    reply->setReadBufferSize(2 * maxReplySize);
    connect(reply, &QNetworkReply::readyRead, this, [this, reply] {
        if (reply->bytesAvailable() > maxReplySize)
            cutOff(reply);
    });
    QTimer::singleShot(service().replyTime, reply, [this, reply] { cutOff(reply); });
}

void VersionCheck::cutOff(QNetworkReply *reply)
{
    if (reply->isFinished())
        return;
    isCutOff = true;
    reply->abort();
}

void VersionCheck::onFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError && !isCutOff) {
        QString reason = reply->errorString();
        const QString host = reply->request().url().host();
        if (!host.isEmpty())
            reason.remove(host);
        reportFailure(reason.left(maxReasonLength));
        return;
    }
    Answer answer;
    if (!isCutOff && reply->bytesAvailable() <= maxReplySize)
        answer = readAnswer(reply);
    if (answer.contains(u"outdated"_s))
        reportSuccess(answer);
    else
        reportFailure(tr("Data transmission failure"));
}

VersionCheck::Answer VersionCheck::readAnswer(QNetworkReply *reply)
{
    Answer answer;
    while (reply->bytesAvailable() > 0) {
        const QByteArray bytes = reply->readLine();
        if (bytes.isEmpty())
            break;
        if (bytes.size() > maxLineLength)
            continue;
        const QString line = QString::fromUtf8(bytes.trimmed());
        const qsizetype separator = line.indexOf(u'=');
        if (separator > 0 && separator + 1 < line.size())
            answer.insert(line.left(separator), line.sliced(separator + 1));
    }
    return answer;
}

void VersionCheck::reportFailure(const QString &reason)
{
    deleteLater();
    if (isForced) {
        QMessageBox *box = createMessageBox(parentWidget(), QMessageBox::Warning);
        box->setWindowTitle(tr("Version check failed"));
        // The reason may quote the service.
        box->setTextFormat(Qt::PlainText);
        box->setText(tr("Error connecting to server.") + u" [%1]\n"_s.arg(reason) +
                     tr("Please check manually at:") + u' ' + Maker::homeUrl());
        box->setStandardButtons(QMessageBox::Ok);
        execMessageBox(box); // this may be gone now
    }
    qDebug("version check failed");
}

void VersionCheck::reportSuccess(const Answer &answer)
{
    SettingsStore *store = SettingsStore::instance();
    store->setValue(SettingKey::VersionCheckLast, QDate::currentDate().toString(dateFormat));
    qDebug("version check successful");
    const QString skipped = store->value(SettingKey::VersionCheckSkip, u"0.0.0.0"_s).toString();
    const bool isNews =
        answer.value(u"outdated"_s).toBool() && answer.value(u"latest"_s).toString() != skipped;
    // Deliberate: a check that the user asked for shows the skipped version too.
    if (isForced || isNews)
        showWhenIdle(answer);
    else
        deleteLater();
}

void VersionCheck::showWhenIdle(const Answer &answer)
{
    if (!isForced && isParentBusy && isParentBusy()) {
        QTimer::singleShot(busyPause, this, [this, answer] { showWhenIdle(answer); });
        return;
    }
    deleteLater();
    if (parent() && parent()->findChild<QObject *>(boxName, Qt::FindDirectChildrenOnly))
        return;
    if (answer.value(u"outdated"_s).toBool())
        showNewVersion(answer);
    else
        showUpToDate();
}

QMessageBox *VersionCheck::createBox()
{
    QMessageBox *box = createMessageBox(parentWidget(), QMessageBox::Information);
    box->setObjectName(boxName);
    return box;
}

void VersionCheck::showNewVersion(const Answer &answer)
{
    const QString latest = answer.value(u"latest"_s).toString();
    QMessageBox *box = createBox();
    box->setText("<span style='font:bold 9pt'>"_L1 + tr("There is a new version available!") +
                 "<br/><span style='color:#448'>"_L1 +
                 u"%1 (%2)"_s.arg(QCoreApplication::applicationName().toHtmlEscaped(),
                                  latest.left(maxVersionLength).toHtmlEscaped()) +
                 "</span></span>"_L1);
    box->setInformativeText("<span style='font:bold 9pt;color:#444'>"_L1 +
                            tr("Would you like to download it now?") + "</span>"_L1);
    box->setDefaultButton(addMessageButton(box, QMessageBox::Yes, tr("Download"), u":/img/submit.png"_s));
    addMessageButton(box, QMessageBox::Close, tr("Later"), u":/img/cancel.png"_s);
    addMessageButton(box, QMessageBox::Retry, tr("What's new?"), u":/img/glass-24.png"_s);
    if (!isForced)
        addMessageButton(box, QMessageBox::Ignore, tr("Skip Version"), u":/img/version_skip.png"_s);
    switch (execMessageBox(box)) { // this may be gone now
    case QMessageBox::Yes:
        openWebAddress(answer.value(u"download"_s).toString());
        break;
    case QMessageBox::Retry:
        openWebAddress(answer.value(u"changes"_s).toString());
        break;
    case QMessageBox::Ignore:
        SettingsStore::instance()->setValue(SettingKey::VersionCheckSkip, latest);
        break;
    default:
        break;
    }
}

void VersionCheck::showUpToDate()
{
    QMessageBox *box = createBox();
    box->setText(tr("You are using the latest version."));
    addCloseButton(box, tr("Close"));
    execMessageBox(box);
}

QWidget *VersionCheck::parentWidget() const
{
    return qobject_cast<QWidget *>(parent());
}
