// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Installation.h>
#include <platform/SoftwareCentre.h>

#include <QObject>
#include <QPointer>

class QMessageBox;
class QWindow;

namespace quorvane {

/// What "Check for Updates…" does: distributions update their programs, so the way to an update is
/// the desktop's software centre.
class UpdaterController final : public QObject {
    Q_OBJECT

public:
    /// Shows the page of this program, if it is one that software centres know; else, or where
    /// nothing can, says in a few words where an update comes from. Returns the window of that
    /// message, which wants the focus, or null.
    [[nodiscard]] QWindow*
    checkForUpdates(SoftwareCentre& softwareCentre, const Installation& installation);

private:
    [[nodiscard]] static QString adviceFor(const Installation& installation);
    [[nodiscard]] static QString describe(const Installation& installation);
    [[nodiscard]] QWindow* showMessage(const Installation& installation);

    QPointer<QMessageBox> m_message;
};

} // namespace quorvane
