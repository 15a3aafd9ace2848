// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/commands.h"

#include "cli/shellquote.h"
#include "naming/examplerules.h"
#include "naming/rulesetfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A saved set of that name, one that comes with the program, or a file, in this order: what is written like
/// a path is one.
std::optional<RuleSet> findSet(const QString &nameOrFile, const Shell &shell, QString *error)
{
    const bool isPath = nameOrFile.contains(u'/') || nameOrFile.contains(QDir::separator());
    const QString saved = isPath ? QString() : RuleSetFolder(ruleSetFolderOf(shell)).find(nameOrFile);
    if (!saved.isEmpty())
        return readRuleSet(saved, error);
    const QList<RuleSet> examples = exampleRuleSets();
    const auto example = std::find_if(examples.begin(), examples.end(),
                                      [&](const RuleSet &set) { return set.name == nameOrFile; });
    if (example != examples.end())
        return *example;
    if (!isPath && !QFileInfo::exists(nameOrFile)) {
        *error = u"there is neither a rule set nor a file of this name"_s;
        return std::nullopt;
    }
    return readRuleSet(nameOrFile, error);
}

void printName(const QString &name, const QString &origin, const CommandLine &line, const Shell &shell)
{
    if (line.form != OutputForm::Json) {
        shell.out.line(origin == "example"_L1 ? shellQuoted(name) + " (comes with the program)"_L1
                                              : shellQuoted(name));
        return;
    }
    const QJsonObject object{{u"name"_s, name}, {u"origin"_s, origin}};
    shell.out.bytes(QJsonDocument(object).toJson(QJsonDocument::Compact));
    shell.out.endLine();
}

ExitCode listSets(const CommandLine &line, const Shell &shell)
{
    for (const auto &entry : RuleSetFolder(ruleSetFolderOf(shell)).list())
        printName(entry.name, u"saved"_s, line, shell);
    for (const RuleSet &set : exampleRuleSets())
        printName(set.name, u"example"_s, line, shell);
    return ExitCode::Done;
}

ExitCode showSet(const QString &nameOrFile, const CommandLine &line, const Shell &shell)
{
    QString problem;
    const auto set = findSet(nameOrFile, shell, &problem);
    if (!set) {
        shell.tell(shellQuoted(nameOrFile) + ": "_L1 + problem);
        return ExitCode::AllFailed;
    }
    if (line.form == OutputForm::Json) {
        RuleSetError wrong;
        shell.out.bytes(jsonOf(*set, &wrong).value_or(QByteArray()));
        return ExitCode::Done;
    }
    for (const SetRule &rule : set->rules)
        shell.out.line((rule.step.isOn ? QString() : u"# off: "_s) + optionOf(rule.step.parameters));
    return ExitCode::Done;
}

ExitCode checkSets(const QStringList &files, const Shell &shell)
{
    int failed = 0;
    for (const QString &file : files) {
        QString problem;
        const auto set = readRuleSet(file, &problem);
        failed += set ? 0 : 1;
        if (set)
            shell.out.line(shellQuoted(file) + u": %1 rules"_s.arg(set->rules.size()));
        else
            shell.tell(shellQuoted(file) + ": "_L1 + problem);
    }
    return exitCodeOf(files.size() - failed, failed);
}

} // namespace

std::optional<Chain> findRuleSet(const QString &nameOrFile, const Shell &shell, QString *error)
{
    QString problem;
    const auto set = findSet(nameOrFile, shell, &problem);
    if (!set) {
        *error = shellQuoted(nameOrFile) + ": "_L1 + problem;
        return std::nullopt;
    }
    Chain chain;
    for (const SetRule &rule : set->rules)
        chain.append(rule.step);
    return chain;
}

ExitCode sets(const CommandLine &line, const Shell &shell)
{
    const QString action = line.operands.constFirst();
    if (action == "list"_L1)
        return listSets(line, shell);
    if (action == "show"_L1)
        return showSet(line.operands.at(1), line, shell);
    return checkSets(line.operands.sliced(1), shell);
}
