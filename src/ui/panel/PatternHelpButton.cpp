// SPDX-License-Identifier: MIT
#include "PatternHelpButton.h"

#include <utility>

namespace quorvane {

PatternHelpButton::PatternHelpButton(
    PopoverEffects effects, PopoverOpener::MakeContent makePage, QWidget* parent)
    : IconButton(Kind::Section, Symbol::QuestionmarkCircle, tr("Letters of a pattern"), parent),
      m_page(*this, std::move(effects), std::move(makePage)) {
    m_page.setAccessibleName(accessibleName());
    m_page.setAlignment(PopoverAlignment::RightEdges);
    connect(this, &PatternHelpButton::clicked, &m_page, &PopoverOpener::toggle);
}

} // namespace quorvane
