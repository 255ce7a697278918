// SPDX-License-Identifier: MIT
#include "KGlobalAccelTap.h"

#include "KdeKeys.h"

#include <QLoggingCategory>
#include <QPointer>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcTap, "quorvane.tap", QtFatalMsg)

} // namespace

KGlobalAccelTap::KGlobalAccelTap(
    std::shared_ptr<KGlobalAccel> daemon,
    const KeyboardLayout& layout,
    const KeyChord& usual,
    TapHandlers handlers)
    : m_daemon(std::move(daemon)),
      m_layout(layout),
      m_usual(usual),
      m_handlers(std::move(handlers)) {
    connect(m_daemon.get(), &KGlobalAccel::pressed, this, &KGlobalAccelTap::handlePress);
    connect(m_daemon.get(), &KGlobalAccel::released, this, [this] {
        if (m_isEnabled && tellsRelease())
            m_handlers.released();
    });
    connect(m_daemon.get(), &KGlobalAccel::keysChanged, this, &KGlobalAccelTap::adopt);
    connect(m_daemon.get(), &KGlobalAccel::vanished, this, [this] {
        if (m_isClaimed)
            setDelivery(TapDelivery::Unavailable);
    });
    connect(m_daemon.get(), &KGlobalAccel::appeared, this, [this] { claim(Claim::AsStored); });
}

KGlobalAccelTap::~KGlobalAccelTap() {
    giveUp();
}

void KGlobalAccelTap::watch(std::optional<KeyChord> chord) {
    // What System Settings has told comes back from whoever was told.
    if (m_chord == chord && m_delivery == TapDelivery::Delivering)
        return;
    m_chord = chord;
    claim(Claim::AsAsked);
}

void KGlobalAccelTap::enable() {
    const bool isAskedAgain = std::exchange(m_isEnabled, true);
    if (!isAskedAgain)
        claim(Claim::AsStored);
    else if (m_delivery == TapDelivery::HeldElsewhere)
        claim(Claim::AsAsked);
}

void KGlobalAccelTap::disable() {
    m_isEnabled = false;
    giveUp();
    setDelivery(TapDelivery::Off);
}

void KGlobalAccelTap::claim(Claim claim) {
    const auto number = ++m_claims;
    if (!m_isEnabled)
        return;
    const auto key = m_chord ? kdeKeyOf(*m_chord, m_layout) : std::nullopt;
    if (!key) {
        giveUp();
        return setDelivery(m_chord ? TapDelivery::NoSuchKey : TapDelivery::Off);
    }
    m_key = *key;
    m_isClaimed = true;
    // The answer comes soon; nobody is told of what lies in between.
    if (m_delivery != TapDelivery::HeldElsewhere)
        setDelivery(TapDelivery::Delivering);
    const auto answered = [self = QPointer(this), number](const std::optional<QList<int>>& keys) {
        if (self && self->m_claims == number)
            self->adopt(keys);
    };
    m_daemon->claim(m_key, kdeKeyOf(m_usual, m_layout), claim, answered);
}

void KGlobalAccelTap::adopt(const std::optional<QList<int>>& keys) {
    if (!m_isClaimed)
        return;
    if (!keys)
        return setDelivery(TapDelivery::Unavailable);
    if (keys->contains(m_key))
        return setDelivery(TapDelivery::Delivering);
    for (const auto key : *keys) {
        if (key != 0)
            return adoptKey(key);
    }
    nameHolder();
}

/// The user's choice in System Settings. One that is no shortcut for the recorder works all the
/// same.
void KGlobalAccelTap::adoptKey(int key) {
    const auto chord = chordOfKdeKey(key, m_layout);
    qCInfo(lcTap, "the list has another shortcut: 0x%x", static_cast<unsigned>(key));
    if (chord) {
        m_chord = chord;
        m_key = key;
    }
    setDelivery(TapDelivery::Delivering);
    if (chord)
        m_handlers.chordChanged(*chord);
}

/// We have no key: another program's, or taken away by the user, whose word that is.
void KGlobalAccelTap::nameHolder() {
    const auto number = m_claims;
    m_daemon->askHolder(m_key, [self = QPointer(this), number](const QString& holder) {
        if (!self || self->m_claims != number)
            return;
        if (holder.isEmpty())
            return self->setDelivery(TapDelivery::Unavailable);
        // What is left in the list would be taken for the user's choice at the next start.
        self->m_daemon->forget();
        self->setDelivery(TapDelivery::HeldElsewhere, holder);
    });
}

void KGlobalAccelTap::giveUp() {
    ++m_claims;
    if (std::exchange(m_isClaimed, false))
        m_daemon->release();
}

void KGlobalAccelTap::handlePress() {
    if (m_isEnabled && m_chord)
        (void) m_handlers.pressed({m_chord->keyCode, m_chord->flags});
}

void KGlobalAccelTap::setDelivery(TapDelivery delivery, const QString& holder) {
    const bool isAnother = m_delivery != delivery || m_holder != holder;
    m_delivery = delivery;
    m_holder = holder;
    if (isAnother)
        m_handlers.deliveryChanged();
}

} // namespace quorvane
