// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <controls/Theme.h>
#include <support/ControlWindow.h>
#include <support/SymbolSearch.h>

#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr SymbolStyle regular{16, SymbolStyle::regular};
constexpr SymbolStyle chip{12, SymbolStyle::semibold};
constexpr SymbolStyle zoneChip{9, SymbolStyle::bold};
constexpr SymbolStyle app{20, SymbolStyle::regular};

/// What stands where: `symbol` is the name of its drawing.
struct Row {
    QAccessible::Role role;
    QString text;
    const char* symbol;
    SymbolStyle style;
};

// A control that has a text of its own is found by its description.
const std::vector<Row> panelRows{
    {QAccessible::Grouping, u"When"_s, "calendar", regular},
    {QAccessible::Grouping, u"Time Zones"_s, "globe", regular},
    {QAccessible::Grouping, u"Format"_s, "textformat.alt", regular},
    {QAccessible::Grouping, u"Preview"_s, "eye.square", regular},
    {QAccessible::Button,
     u"Open as popover at the tray icon"_s,
     "menubar.arrow.up.rectangle",
     regular},
    {QAccessible::ButtonMenu, u"More"_s, "ellipsis", regular},
    {QAccessible::Button, u"Close"_s, "xmark", regular},
    {QAccessible::Button, u"Add time zone"_s, "plus", regular},
    {QAccessible::Button, u"Letters of a pattern"_s, "questionmark.circle", regular},
    {QAccessible::Button, u"Copy"_s, "doc.on.doc", regular},
};

const std::vector<Row> describedRows{
    {QAccessible::Button, u"Start date"_s, "calendar", chip},
    {QAccessible::Button, u"Start time"_s, "clock", chip},
    {QAccessible::Button, u"End date"_s, "calendar", chip},
    {QAccessible::Button, u"End time"_s, "clock", chip},
    {QAccessible::Button, u"Remove"_s, "xmark", zoneChip},
    {QAccessible::Button, u"Add"_s, "plus", zoneChip},
};

const std::vector<Row> menuRows{
    {QAccessible::MenuItem, u"Preferences…"_s, "gear", regular},
    {QAccessible::MenuItem, u"Check for Updates…"_s, "arrow.down.circle", regular},
    {QAccessible::MenuItem, u"Quit Quorvane"_s, "power", regular},
};

class PanelSymbolsTest : public PopoverFixture {
protected:
    [[nodiscard]] Theme theme() const { return Theme::of(view.palette()); }

    /// The names of all symbols that the widget shows in this style and colour.
    [[nodiscard]] static QStringList symbolsOf(QWidget& widget, SymbolStyle style, QColor color) {
        const auto shown = picture(widget);
        QStringList names;
        for (const auto symbol : allSymbols) {
            if (placeOf({symbol, style, color}, shown))
                names.append(symbolName(symbol));
        }
        return names;
    }

    void expectSymbol(QWidget* widget, const Row& row) {
        const auto text = row.text.toStdString();
        ASSERT_NE(widget, nullptr) << text;
        const auto symbols = symbolsOf(*widget, row.style, theme().secondaryText);
        EXPECT_TRUE(symbols.contains(QLatin1StringView(row.symbol)))
            << text << " shows " << symbols.join(u", ").toStdString();
    }

    [[nodiscard]] QWidget* described(const QString& description) const {
        for (auto* control : view.findChildren<PressableControl*>()) {
            if (control->isVisible() && control->accessibleDescription().endsWith(description))
                return control;
        }
        return nullptr;
    }
};

TEST_F(PanelSymbolsTest, EverySectionAndButtonHasItsTextAndItsSymbol) {
    for (const auto& row : panelRows)
        expectSymbol(widgetByRole(view, row.role, row.text), row);
}

TEST_F(PanelSymbolsTest, EveryChipHasItsSymbol) {
    box(u"to"_s).click();
    queue.run();
    for (const auto& row : describedRows)
        expectSymbol(described(row.text), row);
}

TEST_F(PanelSymbolsTest, EveryItemOfTheMenuHasItsTextAndItsSymbol) {
    QTest::mouseClick(widgetByRole(view, QAccessible::ButtonMenu, u"More"_s), Qt::LeftButton);
    auto& menu = *QApplication::activePopupWidget();
    EXPECT_EQ(menu.findChildren<MenuRow*>().size(), std::ssize(menuRows));
    for (const auto& row : menuRows) {
        auto* item = widgetByRole(menu, row.role, row.text);
        // The row that has the focus shows its symbol in the colour of the text.
        if (item != nullptr)
            item->clearFocus();
        expectSymbol(item, row);
    }
}

TEST_F(PanelSymbolsTest, HeaderShowsTheProgramsSymbolInTheAccent) {
    EXPECT_EQ(symbolsOf(view, app, theme().accentText), QStringList{u"calendar.badge.clock"_s});
}

TEST_F(PanelSymbolsTest, InsertShowsItsSymbolOnTheAccent) {
    EXPECT_EQ(symbolsOf(button(u"Insert"_s), regular, theme().onAccent), QStringList{u"return"_s});
}

TEST_F(PanelSymbolsTest, SwitchOfThePresentationShowsWhereItLeads) {
    model.setPresentationMode(PresentationMode::Popover);
    queue.run();
    EXPECT_EQ(
        symbolsOf(button(u"Open as panel"_s), regular, theme().secondaryText),
        QStringList{u"macwindow"_s});
}

} // namespace
} // namespace quorvane
