// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/KeyCodes.h"

#include <utility>

namespace {

constexpr std::pair<std::uint8_t, KeyPosition> keys[] = {
    // Letters, named as on an American keyboard: A to Z.
    {0, 38}, {11, 56}, {8, 54}, {2, 40}, {14, 26}, {3, 41}, {5, 42}, {4, 43}, {34, 31}, {38, 44},
    {40, 45}, {37, 46}, {46, 58}, {45, 57}, {31, 32}, {35, 33}, {12, 24}, {15, 27}, {1, 39},
    {17, 28}, {32, 30}, {9, 55}, {13, 25}, {7, 53}, {16, 29}, {6, 52},
    // Digits: 1 to 9, 0.
    {18, 10}, {19, 11}, {20, 12}, {21, 13}, {23, 14}, {22, 15}, {26, 16}, {28, 17}, {25, 18},
    {29, 19},
    // Punctuation: - = [ ] ; ' , . / \ ` and the key beside the left shift of European keyboards.
    {27, 20}, {24, 21}, {33, 34}, {30, 35}, {41, 47}, {39, 48}, {43, 59}, {47, 60}, {44, 61},
    {42, 51}, {50, 49}, {10, 94},
    // Return, tab, space, backspace, escape, insert, delete, menu.
    {36, 36}, {48, 23}, {49, 65}, {51, 22}, {53, 9}, {114, 118}, {117, 119}, {110, 135},
    // Home, end, page up and down, left, right, down, up.
    {115, 110}, {119, 115}, {116, 112}, {121, 117}, {123, 113}, {124, 114}, {125, 116}, {126, 111},
    // F1 to F12.
    {122, 67}, {120, 68}, {99, 69}, {118, 70}, {96, 71}, {97, 72}, {98, 73}, {100, 74}, {101, 75},
    {109, 76}, {103, 95}, {111, 96},
    // F13 to F15 share their codes with Print, Scroll Lock and Pause, which sit in their place.
    {105, 107}, {107, 78}, {113, 127}, {105, 191}, {107, 192}, {113, 193},
    // F16 to F20.
    {106, 194}, {64, 195}, {79, 196}, {80, 197}, {90, 198},
    // The keypad: 0 to 9, then . * + / enter - =
    {82, 90}, {83, 87}, {84, 88}, {85, 89}, {86, 83}, {87, 84}, {88, 85}, {89, 79}, {91, 80},
    {92, 81}, {65, 91}, {67, 63}, {69, 86}, {75, 106}, {76, 104}, {78, 82}, {81, 125},
    // Japanese keyboards: yen, underscore, the keypad's comma.
    {93, 132}, {94, 97}, {95, 129},
    // Louder, quieter, silent.
    {72, 123}, {73, 122}, {74, 121}};

} // namespace

std::vector<KeyPosition> keyPositions(std::uint32_t keyCode)
{
    std::vector<KeyPosition> positions;
    for (const auto& [code, position] : keys)
        if (code == keyCode)
            positions.push_back(position);
    return positions;
}

std::optional<std::uint32_t> keyCodeAt(std::uint32_t position)
{
    for (const auto& [code, at] : keys)
        if (at == position)
            return code;
    return std::nullopt;
}
