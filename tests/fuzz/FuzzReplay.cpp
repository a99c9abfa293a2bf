#include <QDir>
#include <QFile>
#include <cstdio>
#include <random>
#include <vector>

// Runs a fuzz target without a fuzzer: every file of the corpus folder given, and a fixed set of mutations of each.
// The same bytes on every run, so a failure here can be repeated.

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size);

namespace {

void Run(const QByteArray& bytes)
{
    // An allocation of the exact size, so that a sanitizer sees a read past the end.
    const std::vector<uint8_t> copy(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(copy.data(), copy.size());
}

QByteArray Mutated(QByteArray bytes, std::minstd_rand& random)
{
    const auto below = [&](qsizetype limit) {
        return limit > 0 ? static_cast<qsizetype>(random() % static_cast<unsigned>(limit)) : 0;
    };
    for (qsizetype rounds = 1 + below(4); rounds > 0; --rounds) {
        const qsizetype at = below(bytes.size());
        const qsizetype length = below(qMin<qsizetype>(bytes.size() - at, 64));
        switch (random() % 6) {
        case 0:
            bytes.truncate(at);
            break;
        case 1:
            bytes.remove(at, length);
            break;
        case 2: // another place twice, or in the wrong place
            bytes.insert(below(bytes.size()), bytes.mid(at, length));
            break;
        case 3:
            if (!bytes.isEmpty())
                bytes[at] = static_cast<char>(random());
            break;
        case 4: { // numbers and markup that readers trip over
            static const QByteArrayList tokens = {
                "-1",    "65536",  "99999999999", "",          "1e9", "<",  ">",      "\"",
                "&amp;", "&quot;", "&lt;",        "<![CDATA[", "=",   "%u", "camera", QByteArray(1, '\0'),
                "</a>"};
            bytes.replace(at, below(4), tokens[below(tokens.size())]);
            break;
        }
        default:
            bytes.insert(at, bytes.mid(at, length).repeated(1 + below(20)));
        }
    }
    return bytes;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return std::fprintf(stderr, "usage: %s <corpus folder> <mutations of each file>\n", argv[0]), 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const int mutations = QByteArray(argv[2]).toInt();
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    std::minstd_rand random(1);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        Run(bytes);
        for (int round = 0; round < mutations; ++round)
            Run(Mutated(bytes, random));
    }
    std::printf("%d files, %d inputs\n", int(names.size()), int(names.size()) * (mutations + 1));
    return names.isEmpty() ? 1 : 0;
}
