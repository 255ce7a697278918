// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QString>

namespace quorvane {

/// The file of a picture, in the folder that the build gives or else below the temporary one.
[[nodiscard]] inline QString galleryFile(const QString& name) {
    const auto folder = qEnvironmentVariable(
        "QUORVANE_GALLERY_FOLDER", QDir::temp().filePath(QStringLiteral("quorvane-gallery")));
    QDir().mkpath(folder);
    return QStringLiteral("%1/%2.png").arg(folder, name);
}

} // namespace quorvane
