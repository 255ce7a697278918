// SPDX-License-Identifier: MIT
#pragma once

#include <controls/FocusShaped.h>
#include <loop/Deadline.h>
#include <loop/SlicedWork.h>

#include <QFont>
#include <QPlainTextEdit>

#include <optional>

namespace quorvane {

class OutputLayout;

/// The desktop's fixed font in the size of a callout: for output, and for the patterns that it
/// follows.
[[nodiscard]] QFont outputFont(const QFont& body);

/// The output as it will be delivered: selectable, never editable, as tall as its rows up to forty,
/// beyond which it scrolls. Takes what height is left over.
class OutputPreview final : public QPlainTextEdit, public FocusShaped {
    Q_OBJECT

public:
    /// The queue must outlive the preview.
    OutputPreview(MainQueue& queue, QWidget* parent);

    /// Another output than the one shown clears the selection. Of a very long one the beginning
    /// shows at once, and the rest when the output has not changed for a moment.
    void setOutput(const QString& output);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

    [[nodiscard]] FocusOutline focusOutline() const override;

protected:
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void adoptColors();
    void adoptDirection();
    void paintSelection();
    [[nodiscard]] QPointF middleOfRow(QPointF position) const;

    void showRest();
    bool showNextPart();

    MainQueue& m_queue;
    OutputLayout* m_layout = nullptr;
    QString m_output;
    QString m_shown; ///< the output as the document takes it, character for character
    qsizetype m_shownLength = 0;
    Deadline m_pause;
    std::optional<SlicedWork> m_rest;
    bool m_adopting = false;
};

} // namespace quorvane
