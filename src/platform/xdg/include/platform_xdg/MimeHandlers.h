// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QString>
#include <QStringList>

namespace quorvane {

/// Which programs the desktop has for which kind of content, as far as its files say: mimeapps.list
/// (MIME Applications Associations) and the cache that the desktop keeps of all desktop entries.
class MimeHandlers {
public:
    /// A variable that is empty or not set has the default of the base directories.
    explicit MimeHandlers(const Environment& environment);

    /// Whether a program is registered for the type; files that cannot be read count as empty.
    [[nodiscard]] bool handles(const QString& mimeType) const;

private:
    QStringList m_files;
};

} // namespace quorvane
