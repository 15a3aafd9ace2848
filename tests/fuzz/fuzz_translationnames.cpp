// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/localizer.h"
#include "core/settingsstore.h"
#include "fuzztarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

/// Written apart from the program: what stands between the first "-" and the last ".".
QString expectedCode(const QString &fileName)
{
    static const QRegularExpression form(u"^(?:[^-]*?-)?(.*)\\.[^.]*$"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression withDash(u"^([^-]*)-(.*)\\.[^.]*$"_s,
                                             QRegularExpression::DotMatchesEverythingOption);
    const auto match = withDash.match(fileName);
    return match.hasMatch() ? match.captured(2) : form.match(fileName).captured(1);
}

/// The settings file cannot hold them.
QString withoutControlCharacters(QString text)
{
    return text.removeIf([](QChar c) { return c < u' ' && c != u'\t' && c != u'\n' && c != u'\r'; });
}

void verifyLanguages(const QStringList &files)
{
    QTreeWidget tree;
    tree.setColumnCount(3);
    Localizer *localizer = Localizer::instance();
    localizer->fillLanguageTree(&tree);
    FUZZ_VERIFY(tree.topLevelItemCount() == files.size() + 1, files.join(u'/'));
    FUZZ_VERIFY(tree.topLevelItem(0)->text(0) == "en_UK"_L1, tree.topLevelItem(0)->text(0));
    FUZZ_VERIFY(tree.currentItem() != nullptr, files.join(u'/'));
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString code = expectedCode(files.at(i));
        FUZZ_VERIFY(tree.topLevelItem(static_cast<int>(i) + 1)->text(0) == code, files.at(i));
        const LanguageEntry *entry = localizer->find(code);
        FUZZ_VERIFY(entry && entry->code == code, code);
        FUZZ_VERIFY(entry->fileName.isEmpty() == (code == "en_UK"_L1), code);
        FUZZ_VERIFY(!entry->language.isEmpty() && !entry->country.isEmpty(), code);
        localizer->setLanguage(code);
        const QString saved =
            SettingsStore::instance()->value(SettingKey::MiscLanguage, QVariant()).toString();
        FUZZ_VERIFY(saved == withoutControlCharacters(code), saved);
    }
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

/// The first line is the saved language, each further one the name of a file.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString folder = QCoreApplication::applicationDirPath() + "/locale"_L1;
    FuzzInput input(data, size);
    SettingsStore::destroy();
    SettingsStore::instance()->setValue(SettingKey::MiscLanguage, input.line());
    QDir(folder).removeRecursively();
    FUZZ_VERIFY(QDir().mkpath(folder), folder);
    for (int i = 0; i < 8 && !input.isEmpty(); ++i) {
        const QString name = input.line();
        QFile file(folder + u'/' + name);
        // What the file system refuses is no name.
        if (!name.isEmpty() && !name.contains(u'/') && !name.contains(QChar()) &&
            file.open(QIODevice::WriteOnly))
            file.write("no translation");
    }
    Localizer::instance()->discover();
    // All but hidden ones, in the program's order.
    verifyLanguages(QDir(folder).entryList({u"*.qm"_s}));
    Localizer::destroy();
    QDir(folder).removeRecursively();
    return 0;
}
