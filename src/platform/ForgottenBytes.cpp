// SPDX-License-Identifier: MIT
#include <platform/ForgottenBytes.h>

#include <algorithm>
#include <cstring>

namespace quorvane {

ForgottenBytes::~ForgottenBytes() {
    if (!isDetached())
        return;
    // What was removed at either end still stands there.
    auto& memory = data_ptr();
    forget(
        memory.data() - memory.freeSpaceAtBegin(),
        static_cast<std::size_t>(memory.constAllocatedCapacity()));
}

void ForgottenBytes::add(QByteArrayView more) {
    const auto needed = size() + more.size();
    if (needed > capacity() || !isDetached()) {
        QByteArray grown;
        grown.reserve(std::max(needed, 2 * size()));
        grown.append(*this);
        *this = std::move(grown);
    }
    append(more);
}

void forget(void* memory, std::size_t size) {
    ::explicit_bzero(memory, size);
}

} // namespace quorvane
