// SPDX-License-Identifier: MIT
#include "Insertion.h"

#include "PreviousFrontmostApp.h"

#include <delivery/InsertionDelays.h>

#include <utility>

namespace quorvane {

Insertion::Insertion(Dependencies dependencies)
    : m_previousFrontmostApp(dependencies.previousFrontmostApp),
      m_mainQueue(dependencies.mainQueue),
      m_inserter(
          {dependencies.accessibilityRight,
           dependencies.pasteboard,
           dependencies.keyPoster,
           dependencies.mainQueue}) {
}

void Insertion::start(const QString& text) {
    m_steps.run(m_mainQueue, insertiondelay::beforeActivation, [this, text] {
        m_previousFrontmostApp.activate();
        m_steps.run(
            m_mainQueue, insertiondelay::beforePaste, [this, text] { m_inserter.insert(text); });
    });
}

void Insertion::finish(std::function<void()> done) {
    m_steps.cancelAll();
    m_inserter.finish(std::move(done));
}

} // namespace quorvane
