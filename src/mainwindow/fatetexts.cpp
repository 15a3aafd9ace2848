// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fatetexts.h"

#include "run/newname.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextBoundaryFinder>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

struct Fates
{
    Q_DECLARE_TR_FUNCTIONS(Fates)
};

} // namespace

QString reasonText(Fate reason)
{
    switch (reason) {
    case Fate::Missing:
        return Fates::tr("the file is not there");
    case Fate::Empty:
        return Fates::tr("the new name is empty or only dots");
    case Fate::NoFolder:
        return Fates::tr("there is no such folder");
    case Fate::NotAllowed:
        return Fates::tr("the file system does not take the new name");
    case Fate::TooLong:
        return Fates::tr("the new name is too long");
    case Fate::ReadOnly:
        return Fates::tr("nothing can be renamed in this folder");
    case Fate::NoText:
        return Fates::tr("the new name holds half a character");
    case Fate::Unknown:
        return Fates::tr("the system refused");
    case Fate::OtherFile:
        return Fates::tr("another file has its name");
    default:
        return Fates::tr("the name is taken");
    }
}

namespace {

/// Why a row will stay.
QString futureReason(const Outcome &outcome, const QString &lastPart)
{
    if (outcome.reason == Fate::TakenByRow)
        return Fates::tr("row %1 takes the name %2").arg(QString::number(outcome.row + 1), lastPart);
    if (outcome.reason == Fate::LeavesLater)
        return Fates::tr("row %1 still has the name %2").arg(QString::number(outcome.row + 1), lastPart);
    return reasonText(outcome.reason);
}

QString folderText(const FilePath &file, QStringView newFolder)
{
    return QDir::toNativeSeparators(QDir::cleanPath(file.sibling(newFolder.toString())));
}

} // namespace

void FateCounts::add(const Outcome &outcome)
{
    if (outcome.isRenamed())
        ++renamed;
    else if (outcome.reason == Fate::Unchanged)
        ++unchanged;
    else if (outcome.reason == Fate::Unknown)
        ++unknown;
    else
        ++stuck;
}

QString filesText(int count)
{
    return count == 1 ? Fates::tr("1 file") : Fates::tr("%1 files").arg(count);
}

QString keptText(int count)
{
    return count == 1 ? Fates::tr("1 keeps its name") : Fates::tr("%1 keep their names").arg(count);
}

QString checkingText()
{
    return Fates::tr("checking…");
}

QString troubleText()
{
    return Fates::tr("Go to the next row in trouble (F8)");
}

QString selectionText(int files, int selected)
{
    return Fates::tr("%1, %2 selected").arg(filesText(files), QString::number(selected));
}

QString countsText(int files, const FateCounts &counts)
{
    const QString renamed = QString::number(counts.renamed);
    const QString stuck = QString::number(counts.stuck);
    if (counts.unknown == 0)
        return Fates::tr("%1: %2 will be renamed, %3, %4 cannot")
            .arg(filesText(files), renamed, keptText(counts.unchanged), stuck);
    return Fates::tr("%1: %2 will be renamed, %3, %4 cannot, %5 unknown")
        .arg(filesText(files), renamed, keptText(counts.unchanged), stuck, QString::number(counts.unknown));
}

QString futureSentence(const Outcome &outcome, const FilePath &file, const QString &newName)
{
    if (outcome.fate == Fate::Renamed)
        return {};
    if (outcome.fate == Fate::Unchanged)
        return Fates::tr("Keeps its name.");
    const qsizetype lastPartAt = NewName(newName).lastPartAt;
    const QString lastPart = newName.sliced(lastPartAt);
    const QString stays = outcome.reason == Fate::Unknown
                              ? Fates::tr("Cannot be told before the run.")
                              : Fates::tr("Stays: %1.").arg(futureReason(outcome, lastPart));
    if (outcome.fate != Fate::Separator)
        return stays;
    const QString folder = folderText(file, QStringView(newName).first(lastPartAt));
    if (outcome.isRenamed())
        return Fates::tr("Moves to the folder %1.").arg(folder);
    return stays + u' ' + Fates::tr("The new name leads to the folder %1.").arg(folder);
}

QString pastSentence(const Outcome &outcome)
{
    if (outcome.reason == Fate::Unchanged)
        return Fates::tr("Keeps its name.");
    return Fates::tr("Not renamed: %1.").arg(reasonText(outcome.reason));
}

QString groupText(Fate reason, int count)
{
    return reason == Fate::Unchanged ? keptText(count)
                                     : QString::number(count) + ": "_L1 + reasonText(reason);
}

QString showDetailsText()
{
    return Fates::tr("Show details…");
}

QString detailsTitle()
{
    return Fates::tr("Not Renamed");
}

QStringList detailsHeadings()
{
    return {Fates::tr("Name"), Fates::tr("New name"), Fates::tr("Folder")};
}

QString copyText()
{
    return Fates::tr("Copy");
}

QString closeText()
{
    return Fates::tr("Close");
}

namespace {

/// Behind separators, and within names that are longer than any line.
QString breakableAnywhere(const QString &path)
{
    constexpr int longestPart = 40;
    constexpr QChar place(0x200b); // zero width
    QString text;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, path);
    int part = 0;
    for (qsizetype from = 0, to = letters.toNextBoundary(); to > 0;
         from = to, to = letters.toNextBoundary()) {
        text += QStringView(path).sliced(from, to - from);
        const bool isSeparator = path.at(from) == QDir::separator();
        part = isSeparator || part == longestPart ? 0 : part + 1;
        if (part == 0)
            text += place;
    }
    return text;
}

} // namespace

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? "<qt>"_L1 + text.toHtmlEscaped() + "</qt>"_L1 : text;
}

QString rowToolTip(const QString &sentence, const QString &path)
{
    const QString breakable = breakableAnywhere(QDir::toNativeSeparators(path)).toHtmlEscaped();
    const QString first = sentence.isEmpty() ? QString() : sentence.toHtmlEscaped() + "<br>"_L1;
    return "<qt>"_L1 + first + breakable + "</qt>"_L1;
}
