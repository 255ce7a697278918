// SPDX-License-Identifier: MIT
#include "X11KeyGrab.h"

#include <utility>

namespace quorvane {

std::unique_ptr<X11KeyGrab>
X11KeyGrab::take(std::shared_ptr<X11GrabbedKeys> keys, X11GrabbedKeys::Combination combination) {
    if (!keys->take(combination))
        return nullptr;
    return std::unique_ptr<X11KeyGrab>(new X11KeyGrab(std::move(keys), std::move(combination)));
}

X11KeyGrab::X11KeyGrab(
    std::shared_ptr<X11GrabbedKeys> keys, X11GrabbedKeys::Combination combination)
    : m_keys(std::move(keys)),
      m_combination(std::move(combination)) {
}

X11KeyGrab::~X11KeyGrab() {
    m_keys->drop(m_combination);
}

} // namespace quorvane
