// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

#include <QPointer>

namespace quorvane {

/// The face of a pop-up: the selected title and a chevron on a chip's surface.
class PopUpButton final : public PressableControl {
    Q_OBJECT

public:
    explicit PopUpButton(QWidget* parent);

    /// Shows a title; the width that it asks for is that of the widest of `titles`.
    void setTitle(const QString& title, const QStringList& titles);
    /// What it has opened; null once that is closed.
    void setOpened(QWidget* surface);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ComboBox;
    }

    [[nodiscard]] std::optional<bool> isExpanded() const override { return m_opened != nullptr; }

    [[nodiscard]] QWidget* openedSurface() const override { return m_opened; }

    [[nodiscard]] QString accessibleValue() const override { return text(); }

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

private:
    QStringList m_titles;
    QPointer<QWidget> m_opened;
};

} // namespace quorvane
