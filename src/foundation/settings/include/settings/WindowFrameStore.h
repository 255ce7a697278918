// SPDX-License-Identifier: MIT
#pragma once

#include <settings/JsonFile.h>

#include <QRect>
#include <QString>

#include <optional>

namespace quorvane {

/// Where windows were last, by their autosave names. Frames are in points, on the desktop that all
/// screens make up.
class WindowFrameStore {
public:
    /// `writer` must outlive the store.
    WindowFrameStore(QString path, SettingsWriter& writer);

    /// None if nothing is stored, or no rectangle that has an area.
    [[nodiscard]] std::optional<QRect> frame(const QString& autosaveName) const;

    void setFrame(const QString& autosaveName, const QRect& frame);

private:
    JsonFile m_file;
};

} // namespace quorvane
