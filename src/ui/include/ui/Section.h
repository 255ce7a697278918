// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QWidget>

class QVBoxLayout;

namespace quorvane {

class SectionLabel;

/// One part of the panel: a label and what stands below it.
class Section : public QWidget {
    Q_OBJECT

public:
    Section(const QString& name, Symbol icon, QWidget* parent);

protected:
    [[nodiscard]] SectionLabel& label() { return *m_label; }

    /// Between the panel's two edges.
    [[nodiscard]] QVBoxLayout& body() { return *m_body; }

private:
    SectionLabel* m_label;
    QVBoxLayout* m_body;
};

} // namespace quorvane
