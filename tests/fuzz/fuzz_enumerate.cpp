// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "rules/rulechain.h"
#include "rules/ruledata.h"
#include "rules/ruleenumerate.h"

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
    static const RuleEnumerate rule;
    FuzzInput input(data, size);
    EnumerateParameters parameters;
    parameters.fromStart = input.flag();
    parameters.leadingZeros = input.number(0, 9);
    parameters.startNumber = input.number(0, 512);
    parameters.position = input.number(0, 512);
    // Up to the last row that an int can name.
    const int row = input.number(0, 0x7fff) * 0x10000 + input.number(0, 0xffff);
    const QString name = input.line();
    const RuleData record{&rule, parameters};
    const QString result = applyRuleChain(&record, name, row);
    FUZZ_VERIFY(result == expected(name, parameters, row), result);
    FUZZ_VERIFY(!ruleDescription(&record).isEmpty(), name);
    return 0;
}
