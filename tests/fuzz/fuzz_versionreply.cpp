// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/settingsstore.h"
#include "fuzztarget.h"
#include "support/httpurls.h"
#include "update/versioncheck.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDate>
#include <QMessageBox>
#include <QNetworkReply>
#include <QPointer>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

OpenedUrls *opened = nullptr;

/// A reply that has ended with these bytes.
class FinishedReply final : public QNetworkReply
{
    Q_OBJECT

public:
    explicit FinishedReply(const QByteArray &body)
        : bytes(body)
    {
        setOpenMode(QIODevice::ReadOnly);
        setFinished(true);
    }

    void abort() override {}
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override
    {
        return QNetworkReply::bytesAvailable() + bytes.size() - position;
    }

protected:
    qint64 readData(char *to, qint64 most) override
    {
        const qint64 count = std::min<qint64>(most, bytes.size() - position);
        std::copy_n(bytes.constData() + position, count, to);
        position += count;
        return count;
    }

private:
    QByteArray bytes;
    qint64 position = 0;
};

/// The reply as its format is described: by a regular expression, where the program looks for the first "=".
QMap<QString, QString> expectedAnswer(const QByteArray &body)
{
    static const QRegularExpression entry(u"^([^=]+)=(.+)$"_s,
                                          QRegularExpression::DotMatchesEverythingOption |
                                              QRegularExpression::DontCaptureOption);
    QMap<QString, QString> answer;
    if (body.size() > VersionCheck::maxReplySize)
        return answer;
    QByteArrayList lines = body.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        // The newline counts.
        const qsizetype length = lines.at(i).size() + (i + 1 < lines.size() ? 1 : 0);
        const QString line = QString::fromUtf8(lines.at(i).trimmed());
        if (length <= VersionCheck::maxLineLength && entry.match(line).hasMatch())
            answer[line.section(u'=', 0, 0)] = line.section(u'=', 1);
    }
    return answer;
}

struct Shown
{
    QString text;
    bool isShown = false;
};

/// Runs the check's end with the reply, and answers the box, if there is one, with this button.
Shown run(const QByteArray &body, QMessageBox::StandardButton button)
{
    QWidget window;
    auto *check = new VersionCheck(&window);
    Shown shown;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, &window, [&shown, button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        shown = {box->text(), true};
        box->button(button) ? box->button(button)->click() : box->reject();
    });
    answer.start(0);
    auto *reply = new FinishedReply(body);
    check->onFinished(reply);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return shown;
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    opened = new OpenedUrls({u"http"_s, u"https"_s, u"file"_s, u"javascript"_s, u"data"_s, u"ftp"_s});
    return 0;
}

/// The first byte chooses the button; what is left is the reply.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QMessageBox::StandardButton buttons[] = {QMessageBox::Yes, QMessageBox::Retry,
                                                          QMessageBox::Ignore, QMessageBox::Close};
    FuzzInput input(data, size);
    const auto button = buttons[input.number(0, 3)];
    const QByteArray body = input.rest();
    SettingsStore::destroy();
    opened->urls.clear();
    const Shown shown = run(body, button);

    const QMap<QString, QString> expected = expectedAnswer(body);
    const SettingsStore *store = SettingsStore::instance();
    const QString today = QDate::currentDate().toString(u"dd.MM.yyyy"_s);
    const bool isValid = expected.contains(u"outdated"_s);
    const QString last = store->value(SettingKey::VersionCheckLast, QVariant()).toString();
    FUZZ_VERIFY(last == (isValid ? today : QString()), last);
    const QString latest = expected.value(u"latest"_s);
    const bool isOutdated = isValid && QVariant(expected.value(u"outdated"_s)).toBool();
    // A version that nobody could have skipped is taken for skipped.
    const bool mustShow = isOutdated && latest != "0.0.0.0"_L1;
    FUZZ_VERIFY(shown.isShown == mustShow, shown.text);
    if (!mustShow)
        return 0;
    FUZZ_VERIFY(shown.text.contains(latest.left(100).toHtmlEscaped()), shown.text);
    FUZZ_VERIFY(shown.text.size() < 1000, shown.text);
    const QString skipped = store->value(SettingKey::VersionCheckSkip, QVariant()).toString();
    FUZZ_VERIFY(button == QMessageBox::Ignore || skipped.isNull(), skipped);
    FUZZ_VERIFY(button == QMessageBox::Yes || button == QMessageBox::Retry || opened->urls.isEmpty(), latest);
    for (const QUrl &url : std::as_const(opened->urls))
        FUZZ_VERIFY(url.scheme() == "http"_L1 || url.scheme() == "https"_L1, url.toString());
    return 0;
}

#include "fuzz_versionreply.moc"
