// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "naming/rulesetfolder.h"

#include <QCoreApplication>
#include <QFileDialog>

/// What is asked and told about rule sets.
class RuleSetQuestions final
{
    Q_DECLARE_TR_FUNCTIONS(RuleSetQuestions)

public:
    RuleSetQuestions() = delete;

    [[nodiscard]] static bool mayReplaceRules(QWidget *parent);
    [[nodiscard]] static bool mayReplaceSet(QWidget *parent, const QString &name);
    [[nodiscard]] static bool mayDelete(QWidget *parent, const QString &name);
    /// Empty when nobody wants to save.
    [[nodiscard]] static QString nameFor(QWidget *parent, const QString &proposal);
    [[nodiscard]] static QStringList filesToOpen(QWidget *parent, QFileDialog::FileMode mode);
    /// Empty when nobody wants to.
    [[nodiscard]] static QString fileToWrite(QWidget *parent, const QString &name);
    /// The files in the folder that came of these; says of which there came none.
    [[nodiscard]] static QStringList importFiles(QWidget *parent, const RuleSetFolder &folder,
                                                 const QStringList &paths);

    static void tellNotRead(QWidget *parent, const QString &path, const QString &error);
    static void tellNotSaved(QWidget *parent, const QString &error);
    static void tellNotDeleted(QWidget *parent, const QString &name);
    static void tellNotRenamed(QWidget *parent, const QString &error);
};
