// SPDX-License-Identifier: MIT
#include "FuzzInput.h"

#include <wayland_sway/SwayFrames.h>
#include <wayland_sway/SwayReports.h>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

void readReport(const QByteArray& payload) {
    const auto focus = workspaceFocusIn(payload);
    demand(!focus || !focus->output.isEmpty(), "a screen has a name");
    (void) focusedOutputIn(payload);
    (void) namedWindowIn(payload);
    const auto window = windowIn(payload, 7, u"Quorvane"_s);
    demand(!window || (window->pid == 7 && window->title == u"Quorvane"), "it is the one wanted");
}

} // namespace

/// Any bytes through sway's socket, in pieces of any size.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const qsizetype pieceSize = 1 + input.number<std::uint8_t>();
    readReport(FuzzInput(data, size).rest());
    SwayFrames frames;
    while (!input.isAtEnd()) {
        frames.append(input.bytes(pieceSize));
        while (const auto message = frames.next())
            readReport(message->payload);
    }
    return 0;
}
