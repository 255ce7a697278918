// SPDX-License-Identifier: MIT
#include "FuzzFolder.h"
#include "Samples.h"

#include <time/SystemCurrentZone.h>

#include <unistd.h>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

enum class LocalTime { Missing, Link, File, Copy };

const QByteArray& dataOfAZone() {
    static const auto data = [] {
        QFile file(samples::zones().directory() + u"/Asia/Kathmandu"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    return data;
}

void makeLocalTime(const FuzzFolder& root, LocalTime kind, const QByteArray& bytes) {
    const auto name = u"etc/localtime"_s;
    root.remove(name);
    switch (kind) {
    case LocalTime::Missing:
        break;
    case LocalTime::Link:
        // An empty target is refused; then there is no file.
        (void) !symlink(bytes.constData(), QFile::encodeName(root.path(name)).constData());
        break;
    case LocalTime::File:
        root.write(name, bytes);
        break;
    case LocalTime::Copy:
        root.write(name, dataOfAZone());
        break;
    }
}

} // namespace

/// Any text in TZ, in /etc/timezone, and as the target or the contents of /etc/localtime.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzFolder root;
    FuzzInput input(data, size);
    const auto kind = static_cast<LocalTime>(input.below(4));
    const bool isVariableSet = input.flag();
    const auto variable = QString::fromUtf8(input.piece()).remove(QChar());
    root.write(u"etc/timezone"_s, input.piece());
    makeLocalTime(root, kind, input.rest());
    const Environment environment = [&](const char*) {
        return isVariableSet ? std::optional(variable) : std::nullopt;
    };
    const SystemCurrentZone zone(samples::zones(), environment, root.path().toStdString());
    const auto current = zone.current();
    demand(samples::zones().isKnown(current.identifier()), "the current zone is one of the data's");
    demand(zone.current() == current, "it stays the same");
    return 0;
}
