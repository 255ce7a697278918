// SPDX-License-Identifier: MIT
#include "FavoritesSection.h"
#include "IconsSection.h"
#include "ShortcutSection.h"

#include <controls/SearchField.h>
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
      m_favorites(new FavoritesSection(
          model, m_dependencies.zones, m_dependencies.clock, m_dependencies.pasteReader, this)) {
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
    using namespace preferencesmetrics;
    // Switches are taller than what they paint, and so their section extends below it.
    constexpr int afterSwitches = dividerSpacing - IconsSection::overhang;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, 0);
    column->setSpacing(0);
    column->addWidget(m_shortcut);
    column->addSpacing(dividerSpacing);
    column->addWidget(new Divider(this));
    column->addSpacing(dividerSpacing);
    column->addWidget(m_icons);
    column->addSpacing(afterSwitches);
    column->addWidget(new Divider(this));
    column->addSpacing(dividerSpacing);
    column->addWidget(m_favorites, 1);
}

void PreferencesView::change(HotKeyCombo combo) {
    m_editingCombo = combo;
    m_onHotKeyChange(combo);
    m_refresh.schedule();
}

void PreferencesView::refresh() {
    m_shortcut->setActivity(m_dependencies.shortcutActivity());
    m_icons->refresh();
    m_favorites->refresh();
}

} // namespace quorvane
