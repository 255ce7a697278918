// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <QMimeData>

namespace quorvane {

/// An item as Qt's clipboard takes it: the MIME types as they are, and the text under whichever
/// name it has. Keeps the whole item, with what Qt cannot express.
class X11LentData final : public QMimeData {
public:
    explicit X11LentData(PasteboardItem item);

    /// Gives back what Qt shares before the item goes, which forgets it.
    ~X11LentData() override { clear(); }

    X11LentData(const X11LentData&) = delete;
    X11LentData& operator=(const X11LentData&) = delete;

    [[nodiscard]] const PasteboardItem& item() const { return m_item; }

private:
    PasteboardItem m_item;
};

} // namespace quorvane
