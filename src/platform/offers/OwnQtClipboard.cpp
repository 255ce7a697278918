// SPDX-License-Identifier: MIT
#include "OwnQtClipboard.h"

#include "OfferText.h"

#include <QGuiApplication>
#include <QMimeData>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

bool isQts(QClipboard::Mode mode) {
    const auto* clipboard = QGuiApplication::clipboard();
    return mode == QClipboard::Clipboard ? clipboard->ownsClipboard() : clipboard->ownsSelection();
}

} // namespace

std::optional<PasteboardItem> ownQtItem(QClipboard::Mode mode) {
    if (!QGuiApplication::platformName().startsWith("wayland"_L1) || !isQts(mode))
        return std::nullopt;
    const auto* data = QGuiApplication::clipboard()->mimeData(mode);
    PasteboardItem item;
    for (const auto& format : data->formats()) {
        if (format == u"text/plain"_s) {
            for (auto& entry : offeredText(data->text()))
                item.push_back(std::move(entry));
        } else {
            item.push_back({format, data->data(format), {}});
        }
    }
    return item;
}

} // namespace quorvane
