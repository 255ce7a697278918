// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

namespace quorvane {

/// A surface over its window's content, which is dimmed and takes no input until the sheet is
/// dismissed. Escape dismisses it; the focus then goes back to where it was. Create a new one each
/// time; it deletes itself on close.
class Sheet final : public QWidget {
    Q_OBJECT

public:
    /// Covers `parent` and takes `content`, which gets the focus.
    Sheet(QWidget* parent, QWidget* content);

    void open();
    /// Hides it, gives the focus back and deletes it.
    void dismiss();

    [[nodiscard]] QWidget* content() const { return m_content; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void cover();
    [[nodiscard]] QRect surface() const;
    /// How far the opening has come, 0 to 1.
    [[nodiscard]] double progress() const;

    QWidget* m_content;
    QPointer<QWidget> m_focusBefore;
    QVariantAnimation m_opening;
};

} // namespace quorvane
