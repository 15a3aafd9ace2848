// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/shell.h"

#include <array>

using namespace Qt::StringLiterals;

void Shell::tell(const QString &sentence) const
{
    out.flush();
    trouble.line("orvanto-cli: "_L1 + sentence);
}

std::optional<bool> Shell::ask(const QString &question) const
{
    out.flush();
    trouble.text(question + " [y/N] "_L1);
    trouble.flush();
    QByteArray answer;
    std::array<char, 256> memory{};
    while (answer.size() < 256 && !answer.contains('\n')) {
        const qsizetype count = read(memory.data(), memory.size());
        if (isInterrupted())
            return std::nullopt;
        if (count <= 0)
            break;
        answer.append(memory.data(), count);
    }
    if (!answer.contains('\n'))
        trouble.endLine();
    const QByteArray word = answer.trimmed().toLower();
    return word == "y" || word == "yes";
}
