// SPDX-License-Identifier: MIT
#include <hotkey/HotKeyMonitor.h>

#include <QLoggingCategory>

#include <cstdlib>
#include <limits>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcHotKey, "quorvane.hotkey", QtFatalMsg)

bool isKeyCode(std::int64_t value) {
    return value >= 0 && value <= std::numeric_limits<std::uint32_t>::max();
}

} // namespace

std::shared_ptr<HotKeyMonitor> HotKeyMonitor::create(HotKeyCombo combo, Dependencies dependencies) {
    return std::shared_ptr<HotKeyMonitor>(new HotKeyMonitor(combo, dependencies));
}

HotKeyMonitor::HotKeyMonitor(HotKeyCombo combo, Dependencies dependencies)
    : m_combo(combo),
      m_dependencies(dependencies) {
}

void HotKeyMonitor::setCombo(HotKeyCombo combo) {
    m_combo = combo;
    if (m_eventTap)
        watchCombo();
}

void HotKeyMonitor::setOnTriggered(std::function<void()> onTriggered) {
    m_onTriggered = std::move(onTriggered);
}

void HotKeyMonitor::setOnReleased(std::function<void()> onReleased) {
    m_onReleased = std::move(onReleased);
}

void HotKeyMonitor::setOnDeliveryChanged(std::function<void()> onDeliveryChanged) {
    m_onDeliveryChanged = std::move(onDeliveryChanged);
}

void HotKeyMonitor::setOnComboChanged(std::function<void()> onComboChanged) {
    m_onComboChanged = std::move(onComboChanged);
}

void HotKeyMonitor::start() {
    m_lastFailure.reset();
    if (!m_dependencies.accessibilityRight.mayReadShortcut())
        return fail({u"the accessibility right is missing"_s});

    auto result = m_dependencies.eventTaps.createTap(
        {[this](const KeyPress& press) { return handle(press); },
         [this] { schedule(&HotKeyMonitor::m_onReleased); },
         [this] { announce(&HotKeyMonitor::m_onDeliveryChanged); },
         [this](const KeyChord& chord) {
             adopt(chord);
         }});
    m_lacksTap = std::holds_alternative<TapFailure>(result);
    if (auto* failure = std::get_if<TapFailure>(&result))
        return fail(std::move(*failure));

    m_eventTap = std::move(std::get<std::unique_ptr<EventTap>>(result));
    watchCombo();
    m_eventTap->enable();
    if (!isArmed())
        qCInfo(lcHotKey, "armed, but no press of the shortcut comes to us");
}

void HotKeyMonitor::stop() {
    m_lacksTap = false;
    if (!m_eventTap)
        return;
    m_eventTap->disable();
    m_eventTap.reset();
}

void HotKeyMonitor::retry() {
    if (delivery() == TapDelivery::HeldElsewhere)
        m_eventTap->enable();
    else if (m_lacksTap)
        startAgain();
}

void HotKeyMonitor::startAgain() {
    start();
    if (!m_lacksTap)
        announce(&HotKeyMonitor::m_onDeliveryChanged);
}

TapDelivery HotKeyMonitor::delivery() const {
    return m_eventTap ? m_eventTap->delivery() : TapDelivery::Off;
}

TapVerdict HotKeyMonitor::handle(const KeyPress& press) {
    if (!isKeyCode(press.keyCode))
        std::abort();
    const HotKeyCombo pressed{
        static_cast<std::uint32_t>(press.keyCode), toCarbonModifiers(press.flags)};
    if (pressed != m_combo)
        return TapVerdict::Pass;
    schedule(&HotKeyMonitor::m_onTriggered);
    return TapVerdict::Swallow;
}

void HotKeyMonitor::schedule(Callback HotKeyMonitor::*callback) {
    m_dependencies.mainQueue.async([self = shared_from_this(), callback] {
        // A copy: the callback may replace itself.
        if (const auto run = (*self).*callback)
            run();
    });
}

/// Unlike a trigger, it does not keep the monitor alive.
void HotKeyMonitor::announce(Callback HotKeyMonitor::*callback) {
    m_dependencies.mainQueue.async([weak = weak_from_this(), callback] {
        const auto self = weak.lock();
        // A copy: the callback may replace itself.
        if (const auto run = self ? (*self).*callback : Callback())
            run();
    });
}

void HotKeyMonitor::adopt(const KeyChord& chord) {
    m_combo = {chord.keyCode, toCarbonModifiers(chord.flags)};
    announce(&HotKeyMonitor::m_onComboChanged);
}

void HotKeyMonitor::watchCombo() {
    const auto flags = toModifierFlags(m_combo.modifiers);
    m_eventTap->watch(flags ? std::optional(KeyChord{m_combo.keyCode, *flags}) : std::nullopt);
}

void HotKeyMonitor::fail(TapFailure failure) {
    qCInfo(lcHotKey, "idle: %ls", qUtf16Printable(failure.reason));
    m_lastFailure = std::move(failure);
}

} // namespace quorvane
