// SPDX-License-Identifier: MIT
#pragma once

#include "FuzzInput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace quorvane {

/// A folder whose files a target replaces for each input.
class FuzzFolder {
public:
    [[nodiscard]] QString path(const QString& name = {}) const { return m_folder.filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const {
        remove(name);
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        demand(
            file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "the folder can be written");
    }

    void remove(const QString& name) const { QFile::remove(path(name)); }

private:
    QTemporaryDir m_folder;
};

} // namespace quorvane
