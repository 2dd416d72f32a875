// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"

#include <optional>

/// The text of index.json: a compact JSON array of objects whose members are those of HistoryItem.
namespace HistoryIndex {

/// None where it is no such array, or one entry lacks a member or has one of another type. Members
/// that are not known are kept, number by number as they are written.
std::optional<QList<HistoryItem>> parse(QByteArray text);

QByteArray toJson(const QList<HistoryItem>& items);

} // namespace HistoryIndex
