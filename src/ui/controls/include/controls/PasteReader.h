// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace quorvane {

/// From where a text field takes a text of someone else.
enum class PasteFrom {
    Clipboard,
    Selection, ///< what is selected anywhere, which the middle button pastes; X11's PRIMARY
    Drag,      ///< what another program is dragging
};

/// A text that has been asked for; destroying it gives the text up.
using PasteReading = std::shared_ptr<void>;

/// Asks for the text that stands there, and waits for nobody: the handler is called in a later
/// event-loop iteration, with an empty text where there is none, or is not called at all.
using PasteReader =
    std::function<PasteReading(PasteFrom, std::function<void(const QString&)> handler)>;

} // namespace quorvane
