// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"
#include "Section.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PanelAccessibilityTest : public PopoverFixture {};

TEST_F(PanelAccessibilityTest, SectionsAreGroupsThatTheirLabelsName) {
    QStringList names;
    for (auto* section : view.findChildren<Section*>()) {
        auto* interface = QAccessible::queryAccessibleInterface(section);
        EXPECT_EQ(interface->role(), QAccessible::Grouping);
        names.append(interface->text(QAccessible::Name));
    }
    EXPECT_EQ(names, (QStringList{u"When"_s, u"Time Zones"_s, u"Format"_s, u"Preview"_s}));
}

TEST_F(PanelAccessibilityTest, EverythingThatTakesTheFocusHasAName) {
    model.setIsRange(true);
    model.setFormatPreset(DateFormatPreset::Custom);
    queue.run();
    int focusable = 0;
    for (auto* widget : view.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        ++focusable;
        const auto* interface = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className();
    }
    EXPECT_GT(focusable, 20);
}

TEST_F(PanelAccessibilityTest, WhatCannotBeUsedIsDisabledAndItsLabelIsNot) {
    model.setSelectedTimeZones({});
    queue.run();
    const auto state = [this](QAccessible::Role role, const QString& name) {
        return QAccessible::queryAccessibleInterface(&find<QWidget>(role, name))->state();
    };
    EXPECT_TRUE(state(QAccessible::ComboBox, u"Format"_s).disabled);
    EXPECT_TRUE(state(QAccessible::Button, u"Copy"_s).disabled);
    EXPECT_TRUE(state(QAccessible::Button, u"Insert"_s).disabled);
    EXPECT_FALSE(state(QAccessible::Grouping, u"Format"_s).disabled);
    EXPECT_FALSE(state(QAccessible::Button, u"Add time zone"_s).disabled);
}

} // namespace
} // namespace quorvane
