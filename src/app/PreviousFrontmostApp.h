// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

namespace quorvane {

/// The application that a text is inserted into: the one that has the focus, or had it last while
/// the interface has it.
class PreviousFrontmostApp final {
public:
    /// `workspace` must outlive this.
    explicit PreviousFrontmostApp(const Workspace& workspace) : m_workspace(workspace) {}

    /// Takes the application that is in front now; if there is none, nothing is remembered.
    void remember();

    /// The same while nobody but the window manager can have brought another one to the front: one
    /// that goes is then not replaced by what was behind it.
    void rememberUnlessGone();

    [[nodiscard]] const FrontmostApplication& current() const { return m_current; }

    /// What people call it; empty if nothing is remembered or the desktop does not tell.
    [[nodiscard]] QString title() const;

private:
    const Workspace& m_workspace;
    FrontmostApplication m_current;
    bool m_hasGone = false;
};

} // namespace quorvane
