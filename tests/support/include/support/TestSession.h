// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

namespace quorvane {

/// Gives the process a session that is alike on every machine: folders of its own which are removed
/// in the end, a fixed locale, zone and set of fonts, no bus and no desktop. Make it first in
/// main(), before the application.
class TestSession {
public:
    TestSession();

private:
    void makeFolder(const char* variable, const char* name) const;

    QTemporaryDir m_folder;
};

} // namespace quorvane
