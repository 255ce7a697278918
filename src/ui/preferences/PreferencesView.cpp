// SPDX-License-Identifier: MIT
#include "DesktopSection.h"
#include "FavoritesSection.h"
#include "GeneralSection.h"
#include "IconsSection.h"
#include "ShortcutSection.h"
#include "TypingSection.h"

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
      m_knownCombo(model.hotKey()),
      m_refresh(m_dependencies.mainQueue, [this] { refresh(); }),
      m_sections(new SectionColumn(
          {preferencesmetrics::margin, preferencesmetrics::margin, preferencesmetrics::margin, 0},
          0,
          this)),
      m_shortcut(new ShortcutSection(
          {[this] { return m_editingCombo; },
           [this](HotKeyCombo combo) {
               change(combo);
           }},
          {m_dependencies.keyboardLayout,
           m_dependencies.mainQueue,
           m_dependencies.desktopShortcut,
           m_dependencies.bindingSyntax,
           m_dependencies.popoverEffects,
           m_dependencies.copy},
          this)),
      m_typing(
          new TypingSection(m_dependencies.accessibilityRight, m_dependencies.onAllowTyping, this)),
      m_icons(new IconsSection(model, this)),
      m_general(new GeneralSection(model, m_dependencies.autostart, this)),
      m_desktop(new DesktopSection(this)),
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
    focusFirst();
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
    m_dependencies.desktopShortcut.refresh();
    refresh();
}

void PreferencesView::focusFirst() {
    // One opens the preferences to find a zone more often than for anything else, and only here is
    // there something to type into; Tab leads on from it, and around to the top. A shortcut that
    // does not work yet comes before that.
    auto* first = m_shortcut->needsHelp() ? m_shortcut->offer() : &m_favorites->field();
    first->setFocus(Qt::OtherFocusReason);
}

void PreferencesView::reveal(PreferencesPlace place) {
    if (place == PreferencesPlace::Shortcut)
        reveal(*m_shortcut, m_shortcut->offer());
    else if (place == PreferencesPlace::Typing)
        reveal(*m_typing, m_typing->offer());
}

void PreferencesView::reveal(QWidget& section, QWidget* focused) {
    m_sections->ensureWidgetVisible(&section, 0, preferencesmetrics::margin);
    if (focused != nullptr)
        focused->setFocus(Qt::OtherFocusReason);
}

void PreferencesView::layOut() {
    m_sections->add(m_shortcut);
    addDivider(0);
    m_typingPlace = addOptional(m_typing);
    m_sections->add(m_icons);
    addDivider(IconsSection::overhang);
    m_sections->add(m_general);
    addDivider(GeneralSection::overhang);
    m_desktopPlace = addOptional(m_desktop);
    m_sections->add(m_favorites, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_sections);
}

/// Below a section that extends by `overhang` beyond what it paints.
void PreferencesView::addDivider(int overhang) {
    m_sections->addSpacing(preferencesmetrics::dividerSpacing - overhang);
    m_sections->add(new Divider(this));
    m_sections->addSpacing(preferencesmetrics::dividerSpacing);
}

/// A section that may be absent, with the divider below it and the spacing around that.
QWidget* PreferencesView::addOptional(QWidget* section) {
    auto* place = new QWidget(this);
    auto* column = new QVBoxLayout(place);
    column->setContentsMargins(0, 0, 0, preferencesmetrics::dividerSpacing);
    column->setSpacing(preferencesmetrics::dividerSpacing);
    column->addWidget(section);
    column->addWidget(new Divider(place));
    m_sections->add(place);
    return place;
}

void PreferencesView::change(HotKeyCombo combo) {
    m_editingCombo = combo;
    m_onHotKeyChange(combo);
    m_refresh.schedule();
}

void PreferencesView::refresh() {
    // The desktop's own settings may have given it another.
    if (std::exchange(m_knownCombo, m_model.hotKey()) != m_model.hotKey())
        m_editingCombo = m_model.hotKey();
    m_shortcut->setStatus(m_dependencies.shortcutStatus());
    const bool asksAboutTyping = m_dependencies.accessibilityRight.canPrompt();
    if (asksAboutTyping)
        m_typing->refresh();
    m_typingPlace->setVisible(asksAboutTyping);
    m_desktop->setStates(m_dependencies.serviceStates);
    m_desktopPlace->setVisible(DesktopSection::isWorthTelling(m_dependencies.serviceStates));
    m_icons->refresh();
    m_general->refresh();
    m_favorites->refresh();
}

} // namespace quorvane
