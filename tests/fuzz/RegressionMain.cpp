// Replays every file of a corpus folder through the fuzz target, so inputs that once broke a
// decoder stay in the normal suite.

#include <QDir>
#include <QFile>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const QDir corpus(QString::fromLocal8Bit(argv[1]));
    const auto files = corpus.entryInfoList(QDir::Files);
    for (const QFileInfo& info : files) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                               std::size_t(bytes.size()));
    }
    std::printf("%lld passed, 0 failed\n", static_cast<long long>(files.size()));
    return files.isEmpty() ? 1 : 0;
}
