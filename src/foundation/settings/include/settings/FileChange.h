// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QSet>
#include <QString>

namespace quorvane {

/// What this process has changed in a file that holds one JSON object.
struct FileChange {
    QString path;
    QJsonObject values;    ///< all that this process knows, for where there is no such file
    QSet<QString> changed; ///< the keys that are written into a file that is there
};

} // namespace quorvane
