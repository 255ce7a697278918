// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <utility>

namespace quorvane {

/// What the user had copied in another program. Bytes that nobody shares any more are overwritten
/// before their memory is given back, so that what is dumped or reused later has nothing of them.
class ForgottenBytes final : public QByteArray {
public:
    ForgottenBytes() = default;

    /// Implicit: whoever reads bytes need not know that they will be forgotten. A copy that is held
    /// elsewhere must go before this does.
    ForgottenBytes(QByteArray bytes) : QByteArray(std::move(bytes)) {} // NOLINT

    /// The same of a text that stands in the program.
    ForgottenBytes(const char* text) : QByteArray(text) {} // NOLINT

    ForgottenBytes(const ForgottenBytes&) = default;
    ForgottenBytes(ForgottenBytes&&) noexcept = default;
    ~ForgottenBytes();

    ForgottenBytes& operator=(ForgottenBytes other) noexcept {
        swap(other);
        return *this;
    }

    /// Appends, and leaves nothing behind where the bytes need another place.
    void add(QByteArrayView more);
};

/// Overwrites memory of ours, however little the compiler thinks of that.
void forget(void* memory, std::size_t size);

} // namespace quorvane
