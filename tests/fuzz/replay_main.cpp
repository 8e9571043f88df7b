// Runs a fuzz target over the files and folders named on the command line, for compilers that have no fuzzer.
#include <QDirIterator>
#include <cstdint>
#include <cstdio>

#include "support/files.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files); files.hasNext(); ++replayed) {
            const QByteArray bytes = sarne::test::bytesOf(files.next());
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}

// SPDX-License-Identifier: GPL-3.0-or-later
