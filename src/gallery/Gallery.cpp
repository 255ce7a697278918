// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include "PreferencesBoard.h"
#include "StatesBoard.h"

#include <QGridLayout>

namespace quorvane {

using namespace Qt::StringLiterals;

Gallery::Gallery(QWidget* parent) : QScrollArea(parent) {
    setWindowTitle(u"Gallery"_s);
    auto* boards = new QWidget;
    auto* grid = new QGridLayout(boards);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new StatesBoard(ColorScheme::Light), 0, 0);
    grid->addWidget(new StatesBoard(ColorScheme::Dark), 0, 1);
    grid->addWidget(new PreferencesBoard(ColorScheme::Light), 1, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(new PreferencesBoard(ColorScheme::Dark), 2, 0, 1, 2, Qt::AlignLeft);
    constexpr auto help = PreferencesBoard::Content::DesktopHelp;
    grid->addWidget(new PreferencesBoard(ColorScheme::Light, help), 3, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(new PreferencesBoard(ColorScheme::Dark, help), 4, 0, 1, 2, Qt::AlignLeft);
    setWidget(boards);
}

} // namespace quorvane
