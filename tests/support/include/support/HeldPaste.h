// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>

#include <optional>
#include <utility>

namespace quorvane {

/// An owner of the clipboard that keeps the fields of a test waiting until it is told to answer.
class HeldPaste {
public:
    /// The reader for the fields; the owner must outlive them.
    [[nodiscard]] PasteReader reader() {
        return [this](PasteFrom from, std::function<void(const QString&)> handler) {
            auto reading = std::make_shared<Reading>(Reading{from, std::move(handler)});
            m_last = reading;
            return reading;
        };
    }

    /// What the last paste was asked from; none if there was none, or it was given up.
    [[nodiscard]] std::optional<PasteFrom> asked() const {
        const auto reading = m_last.lock();
        return reading ? std::optional(reading->from) : std::nullopt;
    }

    /// Answers the last paste, unless it was given up.
    void answer(const QString& text) {
        if (const auto reading = std::exchange(m_last, {}).lock())
            reading->handler(text);
    }

private:
    struct Reading {
        PasteFrom from;
        std::function<void(const QString&)> handler;
    };

    std::weak_ptr<Reading> m_last;
};

} // namespace quorvane
