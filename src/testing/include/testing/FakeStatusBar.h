// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusBar.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A bar whose items record what is done to them. The bar may be absent, come and go.
class FakeStatusBar final : public StatusBar {
public:
    explicit FakeStatusBar(CallLog& log) : m_log(log) {}

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(const StatusMenu& menu) override {
        m_log.add("makeStatusItem");
        publishedMenu = menu;
        if (!makesItems)
            return nullptr;
        auto item = std::make_unique<Item>(*this);
        m_item = item.get();
        return item;
    }

    /// The user clicks the icon, which opens an attached menu instead of reporting the click.
    void click(StatusItem::Click click) {
        m_log.add("click");
        if (m_item != nullptr && m_item->menu.empty() && m_item->clicked)
            m_item->clicked(click);
    }

    /// The bar takes on another look, or comes with one.
    void changeTextColor(std::optional<QColor> color) {
        textColor = color;
        if (m_item != nullptr && m_item->textColorChanged)
            m_item->textColorChanged();
    }

    [[nodiscard]] bool isItemVisible() const { return m_item != nullptr && m_item->visible; }

    [[nodiscard]] const StatusMenu& attachedMenu() const { return m_item->menu; }

    bool makesItems = true;
    bool hasButton = true;
    std::optional<QRect> frame = QRect(600, 0, 22, 22);
    StatusMenu publishedMenu;
    QString toolTip;
    QIcon image;
    std::optional<QColor> textColor;

private:
    class Item final : public StatusItem {
    public:
        explicit Item(FakeStatusBar& bar) : m_bar(bar) {}

        ~Item() override { m_bar.m_item = nullptr; }

        Item(const Item&) = delete;
        Item& operator=(const Item&) = delete;

        [[nodiscard]] bool hasButton() const override { return m_bar.hasButton; }

        void setImage(const QIcon& image, const QString& accessibilityDescription) override {
            m_bar.image = image;
            m_bar.m_log.add(
                std::string(image.isNull() ? "setImage none " : "setImage ") +
                accessibilityDescription.toStdString());
        }

        void setToolTip(const QString& text) override { m_bar.toolTip = text; }

        [[nodiscard]] std::optional<QColor> textColor() const override { return m_bar.textColor; }

        void onTextColorChanged(std::function<void()> handler) override {
            textColorChanged = std::move(handler);
        }

        void onClicked(std::function<void(Click)> handler) override {
            clicked = std::move(handler);
        }

        [[nodiscard]] bool isVisible() const override { return visible; }

        void setVisible(bool isVisible) override {
            visible = isVisible;
            m_bar.m_log.add(isVisible ? "setVisible" : "setInvisible");
        }

        void setMenu(const StatusMenu& attached) override {
            menu = attached;
            m_bar.m_log.add(menu.empty() ? "detachMenu" : "attachMenu");
        }

        void performClick() override { m_bar.m_log.add("performClick"); }

        [[nodiscard]] std::optional<QRect> frame() const override { return m_bar.frame; }

        bool visible = false;
        StatusMenu menu;
        std::function<void(Click)> clicked;
        std::function<void()> textColorChanged;

    private:
        FakeStatusBar& m_bar;
    };

    CallLog& m_log;
    Item* m_item = nullptr;
};

} // namespace quorvane
