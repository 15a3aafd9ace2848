// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "naming/describe.h"
#include "naming/transform.h"

namespace {

/// Written apart from the rule; the digits by hand.
QString expected(const QString &name, const EnumerateParameters &parameters, int row)
{
    if (!parameters.fromStart && parameters.position > name.size())
        return name;
    QString digits;
    for (qint64 number = qint64{row} + parameters.startNumber; number > 0; number /= 10)
        digits.prepend(QChar(u'0' + static_cast<char16_t>(number % 10)));
    digits = digits.rightJustified(parameters.leadingZeros + 1, u'0');
    const qsizetype index = parameters.fromStart ? parameters.position : name.size() - parameters.position;
    return name.left(index).leftJustified(index) + digits + name.mid(index);
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
    EnumerateParameters parameters;
    parameters.fromStart = input.flag();
    parameters.leadingZeros = input.number(leadingZerosRange.least, leadingZerosRange.most);
    parameters.startNumber = input.number(startNumberRange.least, startNumberRange.most);
    parameters.position = input.number(positionRange.least, positionRange.most);
    // Up to the last row that an int can name.
    const int row = input.number(0, 0x7fff) * 0x10000 + input.number(0, 0xffff);
    const QString name = input.line();
    const Parameters rule = parameters;
    const QString result = transformed(rule, name, row);
    FUZZ_VERIFY(result == expected(name, parameters, row), result);
    FUZZ_VERIFY(!description(rule).isEmpty(), name);
    return 0;
}
