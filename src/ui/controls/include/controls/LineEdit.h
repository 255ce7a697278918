// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>

#include <QLineEdit>

namespace quorvane {

/// A line of text that never waits for another program. QLineEdit blocks until the clipboard's
/// owner answers; here a pasted text comes when it comes, and what one types meanwhile shows.
///
/// It replaces what was selected, or goes where the cursor was, when it was asked for. It is given
/// up if the text is another by then, if the field was hidden, or if another paste was asked for.
///
/// The keys for copying are the window's while nothing is selected.
///
/// A text that another program drags over the field is read meanwhile: it can be dropped as soon as
/// it has come.
class LineEdit : public QLineEdit {
    Q_OBJECT

public:
    /// Without a reader there is never anything to paste.
    explicit LineEdit(PasteReader reader, QWidget* parent = nullptr);

    /// Shows that the text is not taken, and tells assistive technology why; an empty reason takes
    /// that back.
    void setRefusal(const QString& reason);

    [[nodiscard]] bool isRefused() const { return !m_refusal.isEmpty(); }

public Q_SLOTS:
    /// Pastes from the clipboard; in place of QLineEdit's own, also where it is called by its name.
    void paste();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// The field as it was when a paste was asked for.
    struct Place {
        QString text;
        int cursor = 0;
        int selectionStart = -1; ///< -1 without a selection
        int selectionLength = 0;
    };

    [[nodiscard]] PasteReading read(PasteFrom from, std::function<void(const QString&)> handler);
    [[nodiscard]] Place place() const;
    void pasteFrom(PasteFrom from);
    void insertAt(const Place& place, const QString& pasted);
    void beginUndoStep();

    PasteReader m_reader;
    QString m_refusal;
    PasteReading m_pasting;
    PasteReading m_dragging;
    QString m_dragged; ///< what another program drags, once it has come
};

} // namespace quorvane
