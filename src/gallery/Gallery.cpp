// SPDX-License-Identifier: MIT
#include <gallery/Gallery.h>
#include <gallery/PopoversBoard.h>
#include <gallery/PreferencesBoard.h>
#include <gallery/StatesBoard.h>

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
    grid->addWidget(new PopoversBoard(ColorScheme::Light), 1, 0, Qt::AlignTop);
    grid->addWidget(new PopoversBoard(ColorScheme::Dark), 1, 1, Qt::AlignTop);
    grid->addWidget(new PreferencesBoard(ColorScheme::Light), 2, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(new PreferencesBoard(ColorScheme::Dark), 3, 0, 1, 2, Qt::AlignLeft);
    setWidget(boards);
}

} // namespace quorvane
