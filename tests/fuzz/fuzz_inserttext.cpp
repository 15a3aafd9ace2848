// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "naming/describe.h"
#include "naming/transform.h"

namespace {

/// Written apart from the rule: what stands before, the text, what stands behind.
QString expected(const QString &name, const InsertTextParameters &parameters)
{
    if (parameters.text.isEmpty() || (!parameters.fromStart && parameters.position > name.size()))
        return name;
    const qsizetype index = parameters.fromStart ? parameters.position : name.size() - parameters.position;
    return name.left(index).leftJustified(index) + parameters.text + name.mid(index);
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
    InsertTextParameters parameters;
    parameters.fromStart = input.flag();
    parameters.position = input.number(positionRange.least, positionRange.most);
    parameters.text = input.line();
    const QString name = input.line();
    const Parameters rule = parameters;
    const QString result = transformed(rule, name, 0);
    FUZZ_VERIFY(result == expected(name, parameters), result);
    FUZZ_VERIFY(description(rule).contains(parameters.text), description(rule));
    return 0;
}
