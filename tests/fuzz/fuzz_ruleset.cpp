// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "naming/ruleset.h"

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

/// The content of a rule set's file. What is taken is written, and read again, without a difference.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    RuleSetError error;
    const auto set = ruleSetFromJson(content, &error);
    if (!set) {
        FUZZ_VERIFY(!error.text().isEmpty(), QString::fromLatin1(content.toHex()));
        return 0;
    }
    const auto written = jsonOf(*set, &error);
    FUZZ_VERIFY(written, error.text());
    const auto again = ruleSetFromJson(*written, &error);
    FUZZ_VERIFY(again, error.text());
    FUZZ_VERIFY(jsonOf(*again, &error) == written, QString::fromUtf8(*written));
    return 0;
}
