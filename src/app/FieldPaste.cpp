// SPDX-License-Identifier: MIT
#include "FieldPaste.h"

#include <utility>

namespace quorvane {

namespace {

PasteReading read(Pasteboard& pasteboard, PasteFrom from, Pasteboard::TextHandler done) {
    switch (from) {
    case PasteFrom::Clipboard:
        break;
    case PasteFrom::Selection:
        return pasteboard.readText(PasteSource::Selection, std::move(done));
    case PasteFrom::Drag:
        return pasteboard.readDraggedText(std::move(done));
    }
    return pasteboard.readText(PasteSource::Clipboard, std::move(done));
}

} // namespace

PasteReader fieldPaste(Pasteboard& pasteboard) {
    return [&pasteboard](PasteFrom from, std::function<void(const QString&)> handler) {
        return read(pasteboard, from, [handler = std::move(handler)](const auto& text) {
            handler(text.value_or(QString()));
        });
    };
}

} // namespace quorvane
