// SPDX-License-Identifier: MIT
#include <panel/UpdaterController.h>

#include <QCoreApplication>
#include <QMessageBox>

namespace quorvane {

using namespace Qt::StringLiterals;

void UpdaterController::checkForUpdates(SoftwareCentre& softwareCentre) {
    if (!softwareCentre.showPage(u"org.quorvane.Quorvane"_s))
        showMessage();
}

void UpdaterController::showMessage() {
    if (!m_message) {
        m_message = new QMessageBox(
            QMessageBox::Information,
            tr("Updates"),
            tr("Your package manager updates Quorvane."),
            QMessageBox::Ok);
        m_message->setInformativeText(
            tr("This is version %1.").arg(QCoreApplication::applicationVersion()));
        m_message->setAttribute(Qt::WA_DeleteOnClose);
        m_message->setAttribute(Qt::WA_QuitOnClose, false);
        m_message->setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    m_message->show();
    m_message->raise();
    m_message->activateWindow();
}

} // namespace quorvane
