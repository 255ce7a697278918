// SPDX-License-Identifier: MIT
#include <panel/UpdaterController.h>

#include <QCoreApplication>
#include <QMessageBox>

namespace quorvane {

using namespace Qt::StringLiterals;

QWindow* UpdaterController::checkForUpdates(
    SoftwareCentre& softwareCentre, const Installation& installation) {
    if (installation.isPackage() && softwareCentre.showPage(u"org.quorvane.Quorvane"_s))
        return nullptr;
    return showMessage(installation);
}

QString UpdaterController::adviceFor(const Installation& installation) {
    switch (installation.kind) {
    case Installation::Kind::DebianPackage:
        return tr("Your package manager updates Quorvane.");
    case Installation::Kind::Flatpak:
        return tr("Flatpak updates Quorvane.");
    case Installation::Kind::ByHand:
    case Installation::Kind::BuildFolder:
        break;
    }
    return tr("This Quorvane is updated by hand.");
}

QString UpdaterController::describe(const Installation& installation) {
    switch (installation.kind) {
    case Installation::Kind::DebianPackage:
        return tr("It was installed as a Debian package.");
    case Installation::Kind::Flatpak:
        return tr("It was installed as a Flatpak.");
    case Installation::Kind::BuildFolder:
        return tr("It runs in the folder %1, where it was built.").arg(installation.folder);
    case Installation::Kind::ByHand:
        break;
    }
    return tr("It was installed into the folder %1.").arg(installation.folder);
}

QWindow* UpdaterController::showMessage(const Installation& installation) {
    if (!m_message) {
        m_message = new QMessageBox(
            QMessageBox::Information, tr("Updates"), adviceFor(installation), QMessageBox::Ok);
        m_message->setInformativeText(
            tr("This is version %1 of %2.")
                .arg(
                    QCoreApplication::applicationVersion(),
                    installation.built.toString(Qt::ISODate)) +
            u'\n' + describe(installation));
        m_message->setAttribute(Qt::WA_DeleteOnClose);
        m_message->setAttribute(Qt::WA_QuitOnClose, false);
        m_message->setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    m_message->show();
    return m_message->windowHandle();
}

} // namespace quorvane
