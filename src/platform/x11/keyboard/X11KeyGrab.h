// SPDX-License-Identifier: MIT
#pragma once

#include <x11_keyboard/X11GrabbedKeys.h>

#include <memory>

namespace quorvane {

/// A key with several states of the modifiers, held for us on the whole display as long as this
/// object lives: each press then comes to us alone. From the press on all keys do, until it goes up
/// or the keyboard is freed.
class X11KeyGrab {
public:
    /// Null if another program holds any part of it; we then hold none.
    [[nodiscard]] static std::unique_ptr<X11KeyGrab>
    take(std::shared_ptr<X11GrabbedKeys> keys, X11GrabbedKeys::Combination combination);

    ~X11KeyGrab();

    X11KeyGrab(const X11KeyGrab&) = delete;
    X11KeyGrab& operator=(const X11KeyGrab&) = delete;

    [[nodiscard]] const X11GrabbedKeys::Combination& combination() const { return m_combination; }

private:
    X11KeyGrab(std::shared_ptr<X11GrabbedKeys> keys, X11GrabbedKeys::Combination combination);

    std::shared_ptr<X11GrabbedKeys> m_keys;
    X11GrabbedKeys::Combination m_combination;
};

} // namespace quorvane
