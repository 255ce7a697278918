// SPDX-License-Identifier: MIT
#pragma once

#include <controls/RoleWidget.h>
#include <controls/Symbol.h>

class QVBoxLayout;

namespace quorvane {

class DimmingOverlay;
class SectionLabel;

/// One part of the panel: a label and what stands below it. To assistive technology it is a group
/// that has the label for a name.
class Section : public RoleWidget {
    Q_OBJECT

public:
    Section(const QString& name, Symbol icon, QWidget* parent);

    /// Whether what stands below the label can be used; while it cannot, the section is dimmed.
    void setAvailable(bool available);

protected:
    [[nodiscard]] SectionLabel& label() { return *m_label; }

    /// Lets a frame tell in high contrast that the section cannot be used; see DimmingOverlay.
    void frameWhileUnavailable();

    /// Between the panel's two edges.
    [[nodiscard]] QVBoxLayout& body() { return *m_body; }

private:
    SectionLabel* m_label;
    QWidget* m_content; ///< holds the body, so that it can be disabled without the label
    QVBoxLayout* m_body;
    DimmingOverlay* m_overlay;
};

} // namespace quorvane
