// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

/// What libFuzzer and the replay call: once at the start, which sets up what the target needs, and then with
/// one input at a time. Every target defines both. They are no members of a class: libFuzzer finds them by
/// name.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

/// Ends the process as a crash, which libFuzzer keeps the input of and the replay fails for.
[[noreturn]] void fuzzFailed(const char *condition, const char *file, int line, const QString &details);

/// Asserts a property of what was fuzzed, in every kind of build.
#define FUZZ_VERIFY(condition, details)                                                                      \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            fuzzFailed(#condition, __FILE__, __LINE__, details);                                             \
    } while (false)

/// Makes the application object, once, on the offscreen platform, in a fresh folder that is current from then
/// on and removed at the end.
void startFuzzApplication();

/// Deals one input out as numbers and texts, from its front. Past its end all are 0 and empty, so that every
/// input means something.
class FuzzInput final
{
public:
    FuzzInput(const uint8_t *data, size_t size)
        : next(data)
        , left(size)
    {
    }

    uint8_t byte()
    {
        if (left == 0)
            return 0;
        --left;
        return *next++;
    }
    [[nodiscard]] bool flag() { return (byte() & 1) != 0; }
    /// From least to most, both included.
    [[nodiscard]] int number(int least, int most)
    {
        const int high = byte();
        const int value = high * 256 + byte();
        return least + value % (most - least + 1);
    }
    /// The bytes up to the next newline, read as UTF-8; lone surrogates stand behind U+E000 to U+E7FF, so
    /// that these can be had, too.
    [[nodiscard]] QString line();
    /// All that is left.
    [[nodiscard]] QByteArray rest()
    {
        QByteArray bytes(reinterpret_cast<const char *>(next), static_cast<qsizetype>(left));
        next += left;
        left = 0;
        return bytes;
    }
    [[nodiscard]] bool isEmpty() const { return left == 0; }

private:
    const uint8_t *next;
    size_t left;
};
