#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void run(const QByteArray& content) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.constData()),
                           static_cast<std::size_t>(content.size()));
}

} // namespace

// usage: PROGRAM FOLDER: runs the fuzzer's function on every file of its corpus, whole and cut
// short at every byte of its beginning. What the function finds wrong ends the program.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: PROGRAM FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s cannot be read\n", qPrintable(file.fileName()));
            return 1;
        }
        // Named before it runs, for the case that it is the last.
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        const QByteArray content = file.readAll();
        run(content);
        constexpr qsizetype longestBeginning = 1000;
        for (qsizetype size = 0; size < std::min(content.size(), longestBeginning); ++size) {
            run(content.left(size));
        }
    }
    if (names.isEmpty()) {
        std::fputs("the corpus is empty\n", stderr);
        return 1;
    }
    return 0;
}
