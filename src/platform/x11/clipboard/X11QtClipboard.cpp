// SPDX-License-Identifier: MIT
#include "X11QtClipboard.h"

#include "X11PlainText.h"

#include <QGuiApplication>
#include <QMimeData>

#include <utility>

namespace quorvane::qtx11 {

using namespace Qt::StringLiterals;

namespace {

PasteboardItem itemOf(const QMimeData& data) {
    PasteboardItem item;
    for (const auto& format : data.formats()) {
        if (format == u"text/plain"_s) {
            // Qt offers a text under all the target names for texts.
            for (auto& entry : plainTextItem(data.text()))
                item.push_back(std::move(entry));
        } else if (const auto bytes = data.data(format); !bytes.isNull()) {
            item.push_back({format, bytes, format});
        }
    }
    return item;
}

} // namespace

std::optional<PasteboardItem> clipboardItem(QClipboard::Mode mode) {
    const auto* data = QGuiApplication::clipboard()->mimeData(mode);
    if (data == nullptr)
        return PasteboardItem{};
    // Qt's own class for what it would have to fetch.
    if (data->inherits("QInternalMimeData"))
        return std::nullopt;
    const auto* lent = dynamic_cast<const X11LentData*>(data);
    return lent != nullptr ? lent->item() : itemOf(*data);
}

const X11LentData* lentData() {
    const auto* data = QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard);
    return dynamic_cast<const X11LentData*>(data);
}

} // namespace quorvane::qtx11
