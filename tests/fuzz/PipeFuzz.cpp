// SPDX-License-Identifier: MIT
#include "FuzzInput.h"
#include "FuzzSession.h"
#include "support/TestClipboard.h"

#include <support/WaitUntil.h>
#include <testing/SteppedMainQueue.h>

#include <algorithm>
#include <array>
#include <wayland_clipboard/WaylandPasteboard.h>

using namespace quorvane;
using namespace std::chrono_literals;

namespace {

/// A pasteboard on a compositor whose other programs are the input's.
struct Session {
    TestCompositor compositor;
    TestClipboard clipboard{compositor, TestClipboard::Protocol::Ext};
    SteppedMainQueue queue;
    std::shared_ptr<WaylandConnection> connection = connect();
    WaylandPasteboard pasteboard{connection, std::make_shared<WaylandSeats>(connection), queue};

    std::shared_ptr<WaylandConnection> connect() {
        auto opened = WaylandConnection::open(compositor.environment(), 10s).connection;
        opened->listen();
        return opened;
    }
};

/// What compositors let pass as the name of a type.
std::string typeIn(FuzzInput& input) {
    static const std::array<std::string, 5> known{
        "text/plain;charset=utf-8", "text/plain", "UTF8_STRING", "text/html", "image/png"};
    if (input.flag())
        return input.oneOf(known);
    return input.piece().replace('\0', "").toStdString();
}

ForeignContents contentsIn(FuzzInput& input) {
    ForeignContents contents;
    while (!input.isAtEnd() && contents.size() < 64) {
        const bool isSilent = input.below(16) == 0;
        auto type = typeIn(input);
        contents.push_back(
            {std::move(type),
             input.piece(),
             isSilent ? ForeignAnswer::Nothing : ForeignAnswer::Whole});
    }
    return contents;
}

void checkSave(Session& session, const ForeignContents& contents, PasteSource source) {
    std::optional<PasteboardContents> saved;
    session.pasteboard.save(
        source, [&saved](PasteboardContents found) { saved = std::move(found); });
    demand(
        waitUntil([&] {
            session.queue.advance(Seconds(0.02));
            return saved.has_value();
        }),
        "a save ends");
    for (const auto& item : saved->items) {
        for (const auto& entry : item) {
            demand(
                std::ranges::any_of(
                    contents,
                    [&](const ForeignType& type) {
                        return QString::fromStdString(type.type) == entry.type;
                    }),
                "what is saved was offered");
        }
    }
}

} // namespace

/// Any types and bytes that another program on a Wayland compositor copies and writes into pipes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    makeFuzzSession();
    static Session session;
    FuzzInput input(data, size);
    const auto source = input.flag() ? PasteSource::Selection : PasteSource::Clipboard;
    const auto contents = contentsIn(input);
    session.clipboard.copy(contents);
    if (source == PasteSource::Selection)
        session.clipboard.copy(contents, TestClipboard::Kind::Primary);
    demand(session.connection->settle(10s), "the connection holds");
    checkSave(session, contents, source);
    return 0;
}
