// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/output.h"

void Output::endLine()
{
    buffer.append('\n');
    if (goesOutAtOnce || buffer.size() >= mostBuffered)
        flush();
}

void Output::line(const QString &newText)
{
    text(newText);
    endLine();
}

void Output::flush()
{
    if (isOpen() && !buffer.isEmpty()) {
        QString error;
        result = write(buffer, &error);
        if (result == WriteResult::Failed)
            lastError = error;
    }
    buffer.resize(0);
}
