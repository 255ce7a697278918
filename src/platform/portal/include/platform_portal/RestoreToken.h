// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DefaultsStore.h>

#include <QString>

namespace quorvane {

/// What the desktop gives with a consent, so that it need not ask in the next run: good for one
/// time, and stored until then.
class RestoreToken final {
public:
    /// Nothing longer is kept: portals give an identifier.
    static constexpr qsizetype greatestLength = 1024;

    /// `defaults` must outlive it.
    explicit RestoreToken(DefaultsStore& defaults) : m_defaults(defaults) {}

    /// Empty for none.
    [[nodiscard]] QString current() const;

    /// Empty, or longer than the greatest length: from now on there is none.
    void replace(const QString& token);

private:
    DefaultsStore& m_defaults;
};

} // namespace quorvane
