// SPDX-License-Identifier: MIT
#include "WaylandQtClipboard.h"

#include "WaylandPlainText.h"

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

std::optional<PasteboardItem> qtWaylandItem(QClipboard::Mode mode) {
    if (!QGuiApplication::platformName().startsWith("wayland"_L1) || !isQts(mode))
        return std::nullopt;
    const auto* data = QGuiApplication::clipboard()->mimeData(mode);
    PasteboardItem item;
    for (const auto& format : data->formats()) {
        if (format == u"text/plain"_s) {
            for (auto& entry : waylandTextItem(data->text()))
                item.push_back(std::move(entry));
        } else {
            item.push_back({format, data->data(format), {}});
        }
    }
    return item;
}

} // namespace quorvane
