// SPDX-License-Identifier: MIT
#include "FavoritesSection.h"
#include "GeneralSection.h"
#include "IconsSection.h"
#include "ShortcutSection.h"

#include <controls/SearchField.h>
#include <controls/SectionColumn.h>
#include <controls/Theme.h>
#include <preferences/PreferencesMetrics.h>
#include <preferences/PreferencesView.h>

#include <QPainter>
#include <QShowEvent>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

namespace {

/// A line between two sections.
class Divider final : public QWidget {
public:
    explicit Divider(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), Theme::of(palette()).divider);
    }
};

} // namespace

PreferencesView::PreferencesView(
    DateTimeModel& model, Dependencies dependencies, OnHotKeyChange onHotKeyChange, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_dependencies(std::move(dependencies)),
      m_onHotKeyChange(std::move(onHotKeyChange)),
      m_editingCombo(model.hotKey()),
      m_refresh(m_dependencies.mainQueue, [this] { refresh(); }),
      m_shortcut(new ShortcutSection(
          {[this] { return m_editingCombo; },
           [this](HotKeyCombo combo) {
               change(combo);
           }},
          m_dependencies.keyboardLayout,
          m_dependencies.mainQueue,
          this)),
      m_icons(new IconsSection(model, this)),
      m_general(new GeneralSection(model, m_dependencies.autostart, this)),
      m_favorites(new FavoritesSection(
          model,
          m_dependencies.zones,
          m_dependencies.clock,
          m_dependencies.mainQueue,
          m_dependencies.pasteReader,
          this)) {
    setFixedWidth(preferencesmetrics::size.width());
    layOut();
    connect(&m_model, &DateTimeModel::objectWillChange, this, [this] { m_refresh.schedule(); });
    refresh();
    // One opens the preferences to find a zone more often than for anything else, and only here is
    // there something to type into; Tab leads on from it, and around to the top.
    m_favorites->field().setFocus(Qt::OtherFocusReason);
}

PreferencesView::~PreferencesView() {
    // Ends a recording that is under way, while what it reads from is still there.
    hide();
}

void PreferencesView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    m_editingCombo = m_model.hotKey();
    refresh();
}

void PreferencesView::layOut() {
    constexpr int margin = preferencesmetrics::margin;
    auto* sections = new SectionColumn({margin, margin, margin, 0}, 0, this);
    sections->add(m_shortcut);
    addDivider(*sections, 0);
    sections->add(m_icons);
    addDivider(*sections, IconsSection::overhang);
    sections->add(m_general);
    addDivider(*sections, GeneralSection::overhang);
    sections->add(m_favorites, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(sections);
}

/// Below a section that extends by `overhang` beyond what it paints.
void PreferencesView::addDivider(SectionColumn& column, int overhang) {
    column.addSpacing(preferencesmetrics::dividerSpacing - overhang);
    column.add(new Divider(this));
    column.addSpacing(preferencesmetrics::dividerSpacing);
}

void PreferencesView::change(HotKeyCombo combo) {
    m_editingCombo = combo;
    m_onHotKeyChange(combo);
    m_refresh.schedule();
}

void PreferencesView::refresh() {
    m_shortcut->setStatus(m_dependencies.shortcutStatus());
    m_icons->refresh();
    m_general->refresh();
    m_favorites->refresh();
}

} // namespace quorvane
