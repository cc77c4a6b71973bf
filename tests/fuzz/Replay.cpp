// Tries the files of a folder one after another; what ends the program has been named before.
#include "fuzz/Fuzz.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        REQUIRE(file.open(QIODevice::ReadOnly));
        std::fprintf(stderr, "%s\n", qUtf8Printable(name));
        tryBytes(file.readAll());
    }
    std::printf("%lld files tried\n", static_cast<long long>(names.size()));
    return names.isEmpty() ? 1 : 0;
}
