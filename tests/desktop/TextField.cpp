// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDialog>
#include <QPlainTextEdit>
#include <QVBoxLayout>

// A window of Qt 6 with one editable text, for the desktop tests to type into. With --dialog the
// text stands in a dialog that keeps the window behind it from being used.

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QPlainTextEdit field;
    field.setWindowTitle(QStringLiteral("Text field"));
    field.resize(600, 300);
    field.show();
    QDialog dialog(&field);
    if (QApplication::arguments().contains(QStringLiteral("--dialog"))) {
        field.setReadOnly(true);
        dialog.setWindowTitle(QStringLiteral("Dialog"));
        auto* layout = new QVBoxLayout(&dialog);
        layout->addWidget(new QPlainTextEdit(&dialog));
        dialog.open();
    }
    return QApplication::exec();
}
