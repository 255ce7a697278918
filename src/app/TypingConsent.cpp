// SPDX-License-Identifier: MIT
#include "TypingConsent.h"

#include <utility>

namespace quorvane {

TypingConsent::TypingConsent(Dependencies dependencies, std::function<void()> onChanged)
    : m_dependencies(dependencies),
      m_changed(std::move(onChanged)) {
    m_dependencies.right.onChanged([this] { rightDidChange(); });
}

TypingConsent::~TypingConsent() {
    m_dependencies.right.onChanged([] {});
}

void TypingConsent::allow() {
    m_dependencies.model.setWantsTyping(true);
    m_dependencies.right.prompt();
}

bool TypingConsent::isAsked() const {
    return m_dependencies.right.canPrompt() && m_dependencies.right.typing() == TypingRight::Asking;
}

bool TypingConsent::isDue() const {
    return m_dependencies.model.wantsTyping() && m_dependencies.right.canPrompt() &&
           m_dependencies.right.typing() == TypingRight::NotAsked;
}

void TypingConsent::ask(Answered answered) {
    m_answered = std::move(answered);
    m_dependencies.right.prompt();
    settle();
}

void TypingConsent::rightDidChange() {
    settle();
    m_changed();
}

void TypingConsent::settle() {
    if (isAsked())
        return;
    if (const auto answered = std::exchange(m_answered, {}))
        answered(m_dependencies.right.isTrusted());
}

} // namespace quorvane
