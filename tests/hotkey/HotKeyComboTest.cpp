// SPDX-License-Identifier: MIT
#include <hotkey/HotKeyCombo.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/MemoryDefaults.h>

#include <gtest/gtest.h>

#include <array>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto codeKey = u"hotKeyCode"_s;
const auto modifiersKey = u"hotKeyModifiers"_s;

FakeKeyboardLayout usLayout() {
    FakeKeyboardLayout layout;
    layout.setKey(2, u"d");
    layout.setKey(18, u"1");
    layout.setKey(49, u" ");
    layout.setKey(36, u"\r");
    return layout;
}

TEST(HotKeyCombo, EmptyStoreGivesControlShiftCommandD) {
    const auto combo = HotKeyCombo::load(MemoryDefaults());
    EXPECT_EQ(combo.keyCode, 2U);
    EXPECT_EQ(combo.modifiers, 0x1300U);
    EXPECT_EQ(combo.displayKeys(usLayout()), (QStringList{u"⌃"_s, u"⇧"_s, u"⌘"_s, u"D"_s}));
}

TEST(HotKeyCombo, StoredCodeWithoutModifiersHasNone) {
    MemoryDefaults store;
    store.setInteger(codeKey, 0);
    const auto combo = HotKeyCombo::load(store);
    EXPECT_EQ(combo, (HotKeyCombo{0, 0}));
    EXPECT_EQ(combo.displayKeys(usLayout()), QStringList{u"?"_s});
}

TEST(HotKeyCombo, ModifiersAreNotReadWithoutACode) {
    MemoryDefaults store;
    store.setInteger(modifiersKey, -1);
    EXPECT_EQ(HotKeyCombo::load(store), HotKeyCombo());
}

TEST(HotKeyCombo, CodeThatIsNoNumberGivesTheDefault) {
    MemoryDefaults store;
    store.setString(codeKey, u"D"_s);
    store.setInteger(modifiersKey, 0x100);
    EXPECT_EQ(HotKeyCombo::load(store), HotKeyCombo());
}

TEST(HotKeyCombo, SavedIsLoadedAgain) {
    MemoryDefaults store;
    const HotKeyCombo combo{4294967295U, 4294967295U};
    combo.save(store);
    EXPECT_EQ(store.integerForKey(codeKey), 4294967295);
    EXPECT_EQ(store.integerForKey(modifiersKey), 4294967295);
    EXPECT_EQ(HotKeyCombo::load(store), combo);
}

struct OutOfRange {
    qint64 code;
    qint64 modifiers;
};

class HotKeyComboOutOfRange : public testing::TestWithParam<OutOfRange> {};

TEST_P(HotKeyComboOutOfRange, StopsTheProcess) {
    MemoryDefaults store;
    store.setInteger(codeKey, GetParam().code);
    store.setInteger(modifiersKey, GetParam().modifiers);
    EXPECT_DEATH((void) HotKeyCombo::load(store), "^$");
}

INSTANTIATE_TEST_SUITE_P(
    HotKeyCombo,
    HotKeyComboOutOfRange,
    testing::Values(
        OutOfRange{-1, 0x100},
        OutOfRange{4294967296, 0x100},
        OutOfRange{2, -1},
        OutOfRange{2, 4294967296},
        OutOfRange{9223372036854775807, 0}));

struct Conversion {
    std::uint64_t flags;
    std::uint32_t modifiers;
};

class HotKeyModifiers : public testing::TestWithParam<Conversion> {};

TEST_P(HotKeyModifiers, DropFlagsThatDoNotCount) {
    EXPECT_EQ(toCarbonModifiers({GetParam().flags}), GetParam().modifiers);
}

INSTANTIATE_TEST_SUITE_P(
    HotKeyCombo,
    HotKeyModifiers,
    testing::Values(
        Conversion{0, 0},
        Conversion{0x120000, 0x300},
        Conversion{0x160000, 0x1300},
        Conversion{0x80000, 0x800},
        Conversion{0x110000, 0x100},
        Conversion{0x820000, 0x200},
        Conversion{0x1E0000, 0x1B00},
        Conversion{0xE10000, 0},
        Conversion{~0x1E0000ULL, 0}));

TEST(HotKeyCombo, FlagsOfAComboAreTheInverse) {
    for (const std::uint32_t modifiers : {0U, 0x100U, 0x200U, 0x800U, 0x1000U, 0x1300U, 0x1B00U})
        EXPECT_EQ(toCarbonModifiers(toModifierFlags(modifiers).value()), modifiers);
}

TEST(HotKeyCombo, ModifiersThatNoPressCanHaveHaveNoFlags) {
    EXPECT_EQ(toModifierFlags(0x101), std::nullopt);
    EXPECT_EQ(toModifierFlags(0x400), std::nullopt);
}

TEST(HotKeyCombo, AllFourModifiersShowInTheirFixedOrder) {
    const HotKeyCombo combo{2, 0x1B00};
    EXPECT_EQ(combo.displayKeys(usLayout()), (QStringList{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"⌘"_s, u"D"_s}));
}

TEST(HotKeyCombo, KeyShowsWhatTheLayoutTypesInUpperCase) {
    auto layout = usLayout();
    EXPECT_EQ((HotKeyCombo{2, 0}).keyChar(layout), u"D"_s);
    EXPECT_EQ((HotKeyCombo{18, 0}).keyChar(layout), u"1"_s);
    EXPECT_EQ((HotKeyCombo{49, 0}).keyChar(layout), u" "_s);
    EXPECT_EQ((HotKeyCombo{36, 0}).keyChar(layout), u"\r"_s);
    layout.setKey(2, u"e"); // the same position on Dvorak
    EXPECT_EQ((HotKeyCombo{2, 0}).keyChar(layout), u"E"_s);
}

TEST(HotKeyCombo, KeyWithoutACharacterShowsAQuestionMark) {
    FakeKeyboardLayout layout;
    EXPECT_EQ((HotKeyCombo{123, 0}).keyChar(layout), u"?"_s);
    layout.setKey(2, u"\U0001F600");
    EXPECT_EQ((HotKeyCombo{2, 0}).keyChar(layout), u"?"_s);
    layout.setAvailable(false);
    EXPECT_EQ((HotKeyCombo{2, 0}).keyChar(layout), u"?"_s);
}

TEST(HotKeyCombo, OnlyTheFirstUnitIsShown) {
    FakeKeyboardLayout layout;
    layout.setKey(2, u"de");
    EXPECT_EQ((HotKeyCombo{2, 0}).keyChar(layout), u"D"_s);
}

TEST(HotKeyCombo, UpperCaseMayBeLongerThanTheKey) {
    FakeKeyboardLayout layout;
    layout.setKey(2, u"ß");
    EXPECT_EQ((HotKeyCombo{2, 0}).keyChar(layout), u"SS"_s);
}

TEST(HotKeyCombo, KeyCodeBeyondSixteenBitsStopsTheProcess) {
    const FakeKeyboardLayout layout;
    EXPECT_EQ((HotKeyCombo{0xFFFF, 0}).keyChar(layout), u"?"_s);
    EXPECT_DEATH((void) (HotKeyCombo{0x10000, 0}).keyChar(layout), "^$");
}

TEST(HotKeyCombo, EqualWhenKeyAndModifiersAre) {
    MemoryDefaults store;
    store.setInteger(codeKey, 2);
    store.setInteger(modifiersKey, 0x1300);
    EXPECT_EQ(HotKeyCombo::load(store), (HotKeyCombo{2, 0x1300}));
    EXPECT_NE((HotKeyCombo{2, 0x1300}), (HotKeyCombo{3, 0x1300}));
    EXPECT_NE((HotKeyCombo{2, 0x1300}), (HotKeyCombo{2, 0x1B00}));
}

TEST(HotKeyCombo, CodedFormGoesThereAndBack) {
    const HotKeyCombo combo{4294967295U, 0x1300};
    const auto coded = combo.encoded();
    EXPECT_EQ(coded.keys(), (QStringList{u"keyCode"_s, u"modifiers"_s}));
    EXPECT_EQ(coded.value(u"keyCode").toInteger(), 4294967295);
    EXPECT_EQ(std::get<HotKeyCombo>(HotKeyCombo::decode(coded)), combo);
}

struct Undecodable {
    const char* why;
    QJsonObject coded;
    HotKeyCombo::DecodingError error;
};

TEST(HotKeyCombo, DecodingFailsAtTheFirstFieldThatIsWrong) {
    using Kind = HotKeyCombo::DecodingError::Kind;
    const std::array table{
        Undecodable{"empty", {}, {Kind::MissingKey, u"keyCode"_s}},
        Undecodable{"no modifiers", {{u"keyCode"_s, 2}}, {Kind::MissingKey, u"modifiers"_s}},
        Undecodable{"text", {{u"keyCode"_s, u"2"_s}}, {Kind::WrongType, u"keyCode"_s}},
        Undecodable{"fraction", {{u"keyCode"_s, 2.5}}, {Kind::WrongType, u"keyCode"_s}},
        Undecodable{"bool", {{u"keyCode"_s, true}}, {Kind::WrongType, u"keyCode"_s}},
        Undecodable{"negative", {{u"keyCode"_s, -1}}, {Kind::OutOfRange, u"keyCode"_s}},
        Undecodable{
            "too large",
            {{u"keyCode"_s, 2}, {u"modifiers"_s, qint64{4294967296}}},
            {Kind::OutOfRange, u"modifiers"_s}},
    };
    for (const auto& row : table) {
        const auto decoded = HotKeyCombo::decode(row.coded);
        const auto* error = std::get_if<HotKeyCombo::DecodingError>(&decoded);
        ASSERT_NE(error, nullptr) << row.why;
        EXPECT_EQ(*error, row.error) << row.why;
    }
}

} // namespace
} // namespace quorvane
