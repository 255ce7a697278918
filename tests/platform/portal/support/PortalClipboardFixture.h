// SPDX-License-Identifier: MIT
#pragma once

#include "FakeSharedClipboard.h"
#include "PortalFixture.h"

#include <platform/PasteboardText.h>
#include <platform_portal/PortalPasteboard.h>
#include <testing/FakePasteboard.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <unistd.h>
#include <utility>

namespace quorvane {

/// A pasteboard at a portal that shares the clipboard, and the one that stands in for it.
class PortalClipboardFixture : public PortalFixture {
protected:
    void SetUp() override {
        portal.clipboard = &shared;
        portal.consent[QStringLiteral("clipboard_enabled")] = true;
        portal.appear();
        startProgram();
        const auto clipboard = std::make_shared<PortalClipboard>(desktop, queue);
        keyboard->share(clipboard);
        auto standIn = std::make_unique<FakePasteboard>(log, queue);
        otherwise = standIn.get();
        pasteboard = std::make_unique<PortalPasteboard>(clipboard, std::move(standIn), queue);
    }

    /// The user agrees.
    [[nodiscard]] bool isShared() {
        const bool isGranted = opensTo(TypingRight::Granted) && settles();
        shared.client = portal.client();
        shared.session = portal.sessionPath();
        return isGranted && keyboard->sharesClipboard();
    }

    [[nodiscard]] PutOutcome put(const QString& text, TextStay stay = TextStay::Lasting) {
        const auto outcome = pasteboard->setString(text, stay, PasteSource::Clipboard);
        EXPECT_TRUE(settles());
        return outcome;
    }

    void copy(QMap<QString, QByteArray> entries) {
        shared.copy(std::move(entries));
        ASSERT_TRUE(settles());
    }

    void startSave() {
        contents.reset();
        pasteboard->save(PasteSource::Clipboard, [this](PasteboardContents found) {
            contents = std::move(found);
        });
    }

    /// What the save finds, without its patience having come to an end.
    [[nodiscard]] PasteboardItem saved() {
        startSave();
        EXPECT_TRUE(comesTo([&] { return contents.has_value(); }));
        return contents && !contents->items.empty() ? contents->items.front() : PasteboardItem{};
    }

    void restore(PasteboardItem item) {
        bool isRestored = false;
        const auto restoring =
            pasteboard->restore(std::move(item), std::nullopt, [&] { isRestored = true; });
        EXPECT_TRUE(comesTo([&] { return isRestored; }));
        EXPECT_TRUE(settles());
    }

    /// What another program gets that pastes now; none where it is refused.
    [[nodiscard]] std::optional<QByteArray> pasted(const QString& type) {
        const auto serial = shared.paste(type);
        const auto isDecided = [&] {
            return shared.pasted(serial) || shared.hasEnded(serial);
        };
        if (!comesTo(isDecided) || !shared.pasted(serial))
            return std::nullopt;
        return readToEnd(*shared.pasted(serial));
    }

    [[nodiscard]] QByteArray readToEnd(int descriptor) {
        ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
        QByteArray bytes;
        std::array<char, 65'536> piece{};
        EXPECT_TRUE(comesTo([&] {
            const auto length = ::read(descriptor, piece.data(), piece.size());
            if (length > 0)
                bytes.append(piece.data(), length);
            return length == 0 || (length < 0 && errno != EAGAIN);
        }));
        return bytes;
    }

    CallLog log{queue};
    FakeSharedClipboard shared{portal.bus()};
    FakePasteboard* otherwise = nullptr;
    std::unique_ptr<PortalPasteboard> pasteboard;
    std::optional<PasteboardContents> contents;
};

} // namespace quorvane
