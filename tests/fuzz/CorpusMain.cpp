// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

/// False for a file that cannot be read.
bool run(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const auto bytes = file.readAll();
    LLVMFuzzerTestOneInput(
        reinterpret_cast<const std::uint8_t*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size()));
    return true;
}

} // namespace

/// Gives the target each file of the folders, and no input at all first. A folder without a file is
/// a failure.
int main(int argc, char** argv) {
    LLVMFuzzerTestOneInput(nullptr, 0);
    int inputs = 0;
    for (int index = 1; index < argc; ++index) {
        const QDir folder(QFile::decodeName(argv[index]));
        for (const auto& name : folder.entryList(QDir::Files, QDir::Name)) {
            if (!run(folder.filePath(name))) {
                std::fprintf(stderr, "cannot be read: %s\n", qUtf8Printable(name));
                return 1;
            }
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
