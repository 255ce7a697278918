// SPDX-License-Identifier: MIT
#include "Insertion.h"

#include <delivery/CopyText.h>
#include <delivery/InsertionDelays.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcInsert, "quorvane.insert", QtFatalMsg)

const char* nameOf(CopyReason reason) {
    switch (reason) {
    case CopyReason::NoWindow:
        return "the target does not get the keys";
    case CopyReason::NoWayToType:
        return "keys cannot be posted";
    }
    return "";
}

} // namespace

Insertion::Insertion(Dependencies dependencies, Callbacks callbacks)
    : m_dependencies(dependencies),
      m_callbacks(std::move(callbacks)),
      m_inserter(
          {dependencies.accessibilityRight,
           dependencies.pasteboard,
           dependencies.keyPoster,
           dependencies.mainQueue}) {
}

void Insertion::start(const QString& text, const FrontmostApplication& target) {
    const auto& consent = m_dependencies.consent;
    const bool canType = m_dependencies.accessibilityRight.isTrusted() || consent.isDue();
    if (consent.isAsked() || !canType)
        copyInstead(text, CopyReason::NoWayToType);
    else if (!m_isUnderWay)
        begin({text, target});
    else if (!m_waiting)
        m_waiting = {text, target};
    else
        qCInfo(lcInsert, "dropped: one insertion is under way, and another one waits");
}

void Insertion::finish(std::function<void()> done) {
    m_steps.cancelAll();
    m_waiting.reset();
    m_dependencies.consent.forget();
    m_inserter.finish(std::move(done));
}

void Insertion::begin(const Request& request) {
    m_isUnderWay = true;
    if (m_dependencies.consent.isDue())
        ask(request);
    else
        approach(request);
}

/// The user may have gone elsewhere while the question was open: the target is not brought back,
/// but gets the time in which it comes by itself.
void Insertion::ask(const Request& request) {
    m_dependencies.consent.ask([this, request](bool isGiven) {
        if (!isGiven) {
            copyInstead(request.text, CopyReason::NoWayToType);
            return beginNext();
        }
        constexpr auto whileTheQuestionCloses =
            insertiondelay::beforeActivation + insertiondelay::beforePaste;
        m_steps.run(m_dependencies.mainQueue, whileTheQuestionCloses, [this, request] {
            deliver(request);
        });
    });
}

void Insertion::approach(const Request& request) {
    m_steps.run(m_dependencies.mainQueue, insertiondelay::beforeActivation, [this, request] {
        activate(request);
        m_steps.run(m_dependencies.mainQueue, insertiondelay::beforePaste, [this, request] {
            deliver(request);
        });
    });
}

void Insertion::activate(const Request& request) {
    const auto& application = request.target.application;
    if (application && !m_dependencies.workspace.activate(*application))
        qCInfo(lcInsert, "%ls cannot be activated", qUtf16Printable(application->name));
}

void Insertion::deliver(const Request& request) {
    if (isReached(request.target)) {
        m_inserter.insert(request.text, [this, request](InsertionOutcome outcome) {
            conclude(request, outcome);
        });
    } else {
        copyInstead(request.text, CopyReason::NoWindow);
        beginNext();
    }
}

bool Insertion::isReached(const FrontmostApplication& target) const {
    if (!target.isCertain)
        return true;
    // The window manager has had its time to answer.
    return target.application && m_dependencies.workspace.receivesKeys(*target.application);
}

void Insertion::conclude(const Request& request, InsertionOutcome outcome) {
    switch (outcome) {
    case InsertionOutcome::Posted:
        m_callbacks.onTyped();
        break;
    case InsertionOutcome::NoRight:
    case InsertionOutcome::NoKeys:
        copyInstead(request.text, CopyReason::NoWayToType);
        break;
    case InsertionOutcome::NotTaken:
        break;
    }
    beginNext();
}

void Insertion::copyInstead(const QString& text, CopyReason reason) {
    if (copyText(m_dependencies.pasteboard, text) != PutOutcome::Taken) {
        qCInfo(lcInsert, "neither typed nor copied: the pasteboard does not take the text");
        return;
    }
    qCInfo(lcInsert, "copied instead: %s", nameOf(reason));
    m_callbacks.onCopied(reason);
}

void Insertion::beginNext() {
    m_isUnderWay = false;
    if (const auto next = std::exchange(m_waiting, std::nullopt))
        begin(*next);
}

} // namespace quorvane
