// SPDX-License-Identifier: MIT
#pragma once

#include "FuzzInput.h"

#include <sys/mman.h>
#include <unistd.h>

namespace quorvane {

/// A plain file without a disk under it, whose contents can be replaced.
class MemoryFile {
public:
    MemoryFile() : m_descriptor(memfd_create("fuzz", MFD_CLOEXEC)) {
        demand(m_descriptor >= 0, "the system gives files in memory");
    }

    ~MemoryFile() { close(m_descriptor); }

    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// By which it can be opened.
    [[nodiscard]] QString path() const {
        return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
    }

    void replace(const QByteArray& bytes) const {
        const auto size = static_cast<std::size_t>(bytes.size());
        demand(
            ftruncate(m_descriptor, 0) == 0 &&
                pwrite(m_descriptor, bytes.constData(), size, 0) == bytes.size(),
            "files in memory can be written");
    }

private:
    int m_descriptor;
};

} // namespace quorvane
