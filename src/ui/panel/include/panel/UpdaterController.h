// SPDX-License-Identifier: MIT
#pragma once

#include <platform/SoftwareCentre.h>

#include <QObject>
#include <QPointer>

class QMessageBox;

namespace quorvane {

/// What "Check for Updates…" does: distributions update their programs, so the way to an update is
/// the desktop's software centre.
class UpdaterController final : public QObject {
    Q_OBJECT

public:
    /// Shows this program's page; where nothing can, says in a few words who updates it.
    void checkForUpdates(SoftwareCentre& softwareCentre);

private:
    void showMessage();

    QPointer<QMessageBox> m_message;
};

} // namespace quorvane
