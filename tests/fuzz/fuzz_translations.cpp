// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/translationfile.h"
#include "fuzztarget.h"

#include <QTranslator>
#include <QtEndian>

#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr char sourceTextPart = 6;

/// Bytes at the very end of readable memory: reading one more crashes, in Qt's own code, too.
class GuardedBytes final
{
public:
    explicit GuardedBytes(const QByteArray &bytes)
        : page(static_cast<size_t>(sysconf(_SC_PAGESIZE)))
        , readable((static_cast<size_t>(bytes.size()) / page + 1) * page)
        , length(static_cast<size_t>(bytes.size()))
        , memory(static_cast<uchar *>(
              mmap(nullptr, readable + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)))
    {
        FUZZ_VERIFY(memory != MAP_FAILED && mprotect(memory + readable, page, PROT_NONE) == 0, u"mmap"_s);
        std::memcpy(memory + readable - length, bytes.constData(), length);
    }
    ~GuardedBytes() { munmap(memory, readable + page); }
    Q_DISABLE_COPY_MOVE(GuardedBytes)

    [[nodiscard]] const uchar *data() const { return memory + readable - length; }
    [[nodiscard]] int size() const { return static_cast<int>(length); }

private:
    size_t page;
    size_t readable;
    size_t length;
    uchar *memory;
};

/// Everything in the bytes that may be a source text: those are what the hashes lead to.
QByteArrayList possibleTexts(const QByteArray &bytes)
{
    QByteArrayList texts{"Replace", "", "%n file(s)"};
    for (qsizetype i = 0; i + 5 <= bytes.size(); ++i) {
        const auto length = qFromBigEndian<quint32>(bytes.constData() + i + 1);
        if (bytes.at(i) == sourceTextPart && length <= 200)
            texts.append(bytes.mid(i + 5, length));
    }
    return texts;
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    startFuzzApplication();
    return 0;
}

/// The content of a .qm file.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArray checked = installableTranslation(content);
    if (checked.isEmpty())
        return 0;
    FUZZ_VERIFY(installableTranslation(checked) == checked, QString::fromLatin1(checked.toHex()));
    FUZZ_VERIFY(checked.size() <= content.size(), QString::fromLatin1(checked.toHex()));
    const GuardedBytes bytes(checked);
    QTranslator translator;
    if (!translator.load(bytes.data(), bytes.size()))
        return 0;
    const QByteArrayList texts = possibleTexts(checked);
    for (const QByteArray &text : texts) {
        for (const char *context : {"Rules", "MainWindow", ""}) {
            for (const int number : {-1, 0, 1, 3, 1000000})
                static_cast<void>(translator.translate(context, text.constData(), "comment", number));
        }
    }
    return 0;
}
