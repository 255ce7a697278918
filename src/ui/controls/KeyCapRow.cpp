// SPDX-License-Identifier: MIT
#include <controls/KeyCap.h>
#include <controls/KeyCapRow.h>

#include <QHBoxLayout>

#include <iterator>

namespace quorvane {

namespace {

constexpr int capSpacing = 4;

/// Qt announces every assignment, also of what a screen reader knows already.
void nameCap(KeyCap& cap, const QString& name) {
    if (cap.accessibleName() != name)
        cap.setAccessibleName(name);
}

} // namespace

KeyCapRow::KeyCapRow(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(capSpacing);
    for (auto*& cap : m_caps) {
        cap = new KeyCap({}, this);
        cap->hide();
        row->addWidget(cap);
    }
}

void KeyCapRow::setKeys(const QStringList& labels, const QStringList& names) {
    for (qsizetype index = 0; index < std::ssize(m_caps); ++index) {
        auto* cap = m_caps[static_cast<std::size_t>(index)];
        cap->setVisible(index < labels.size());
        cap->setText(labels.value(index));
        nameCap(*cap, names.value(index));
    }
}

} // namespace quorvane
