#include "fuzz/input.h"

#include <QDir>
#include <QFile>

#include <cstdio>

/// Stands in for the fuzzer in every build that is none: runs the target once on each file of a
/// folder, so that the seeds, and whatever the fuzzer once found, are tests.
int main(int argc, char **argv)
{
    const QDir folder(argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString());
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    if (argc != 2 || names.isEmpty()) {
        std::fprintf(stderr, "usage: %s FOLDER-WITH-INPUTS\n", argv[0]);
        return 2;
    }
    for (const QString &name : names) {
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            return 1;
        }
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
    }
    return 0;
}
