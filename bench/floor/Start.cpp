// SPDX-License-Identifier: MIT
// The least that a program of Qt does: a window with a text, as large as the panel.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("A text"));
    window.resize(504, 488);
    window.show();
    return QApplication::exec();
}
