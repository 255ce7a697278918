// SPDX-License-Identifier: MIT
#include "LineEditMenu.h"

#include <QCoreApplication>
#include <QIcon>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

class LineEditMenu final : public QMenu {
    Q_DECLARE_TR_FUNCTIONS(LineEditMenu)

public:
    explicit LineEditMenu(LineEdit& field) : QMenu(&field), m_field(field) {
        const bool editable = !field.isReadOnly();
        const bool selected = field.hasSelectedText();
        if (editable) {
            add(tr("&Undo"), u"edit-undo"_s, QKeySequence::Undo, &LineEdit::undo)
                .setEnabled(field.isUndoAvailable());
            add(tr("&Redo"), u"edit-redo"_s, QKeySequence::Redo, &LineEdit::redo)
                .setEnabled(field.isRedoAvailable());
            addSeparator();
            add(tr("Cu&t"), u"edit-cut"_s, QKeySequence::Cut, &LineEdit::cut).setEnabled(selected);
        }
        add(tr("&Copy"), u"edit-copy"_s, QKeySequence::Copy, &LineEdit::copy).setEnabled(selected);
        if (editable) {
            add(tr("&Paste"), u"edit-paste"_s, QKeySequence::Paste, &LineEdit::paste);
            add(tr("Delete"), u"edit-delete"_s, {}, &LineEdit::del).setEnabled(selected);
        }
        addSeparator();
        add(tr("Select All"), u"edit-select-all"_s, QKeySequence::SelectAll, &LineEdit::selectAll)
            .setEnabled(!field.text().isEmpty() && field.selectedText() != field.text());
    }

private:
    /// The field answers to the keys itself; the menu only shows them.
    template <typename Slot>
    QAction& add(const QString& title, const QString& icon, const QKeySequence& keys, Slot slot) {
        const auto shown =
            keys.isEmpty() ? QString() : u'\t' + keys.toString(QKeySequence::NativeText);
        auto* action = addAction(QIcon::fromTheme(icon), title + shown);
        connect(action, &QAction::triggered, &m_field, slot);
        return *action;
    }

    LineEdit& m_field;
};

} // namespace

QMenu* makeLineEditMenu(LineEdit& field) {
    return new LineEditMenu(field);
}

} // namespace quorvane
