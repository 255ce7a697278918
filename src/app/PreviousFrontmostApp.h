// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <optional>

namespace quorvane {

/// The application that had the focus before the interface was shown: where a text is inserted.
class PreviousFrontmostApp final {
public:
    /// `workspace` must outlive this.
    explicit PreviousFrontmostApp(Workspace& workspace) : m_workspace(workspace) {}

    /// Takes the application that has the focus now; if none has it, nothing is remembered.
    void remember() { m_application = m_workspace.frontmostApplication().application; }

    /// Gives the focus back to the application. Does nothing if none is remembered; one that cannot
    /// be activated is named in the log.
    void activate();

private:
    Workspace& m_workspace;
    std::optional<RunningApplication> m_application;
};

} // namespace quorvane
