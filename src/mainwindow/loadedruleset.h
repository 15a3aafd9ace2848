// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/ruleset.h"

#include <QMap>
#include <QObject>

#include <vector>

class ActiveRules;
class Rule;
struct ActiveRule;

/// The rule set that the active rules came from, and whether they are still the same.
class LoadedRuleSet final : public QObject
{
    Q_OBJECT

public:
    /// The kinds by their place in the catalogue.
    LoadedRuleSet(ActiveRules &ofRules, const QMap<int, Rule *> &ofKinds);

    enum class Kept {
        /// They can be loaded again.
        Yes,
        No
    };
    /// Replaces the active rules. The path is empty where there is no file to save them to.
    void load(const RuleSet &set, const QString &path, Kept kept);
    /// Behind the active rules, which are no others for that: their name stays.
    void append(const RuleSet &set);
    /// The active rules are in this file now.
    void becomeSaved(const QString &name, const QString &path);
    /// Its file is another one now, or is gone: empty.
    void follow(const QString &name, const QString &path);

    /// Empty while no set was loaded or saved.
    [[nodiscard]] const QString &name() const { return setName; }
    [[nodiscard]] const QString &path() const { return filePath; }
    /// Whether the active rules are others than those of the set.
    [[nodiscard]] bool isChanged() const;
    /// Whether the active rules are nowhere else.
    [[nodiscard]] bool isUnsaved() const;
    /// The active rules under a name.
    [[nodiscard]] RuleSet activeAs(const QString &name) const;

signals:
    /// What the functions above say.
    void changed();

private:
    [[nodiscard]] std::vector<ActiveRule> rulesOf(const RuleSet &set) const;
    [[nodiscard]] QByteArray content() const;

    ActiveRules &rules;
    const QMap<int, Rule *> &kinds;
    QString setName;
    QString filePath;
    QString comment;
    QByteArray loadedContent;
    bool isKept = false;
};
