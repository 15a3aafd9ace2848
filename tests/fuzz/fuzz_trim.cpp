// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "naming/describe.h"
#include "naming/transform.h"

namespace {

/// Written apart from the rule: which of the characters stay.
QString expected(const QString &name, const TrimParameters &parameters)
{
    qsizetype begin = parameters.position;
    qsizetype length = parameters.length;
    if (!parameters.fromStart) {
        begin = name.size() - parameters.length;
        length = name.size() - parameters.position;
        // A begin before the name counts from its end; one before that removes nothing.
        if (begin < 0)
            begin += name.size();
    }
    QString kept;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool isRemoved = begin >= 0 && length > 0 && i >= begin && i - begin < length;
        if (!isRemoved)
            kept += name.at(i);
    }
    return kept;
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    TrimParameters parameters;
    parameters.fromStart = input.flag();
    parameters.position = input.number(positionRange.least, positionRange.most);
    parameters.length = input.number(lengthRange.least, lengthRange.most);
    const QString name = input.line();
    const Parameters rule = parameters;
    const QString result = transformed(rule, name, 0);
    FUZZ_VERIFY(result == expected(name, parameters), result);
    FUZZ_VERIFY(!description(rule).isEmpty(), name);
    return 0;
}
