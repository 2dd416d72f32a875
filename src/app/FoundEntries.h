// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/TextFiles.h"

#include <QVariantMap>

/// The entries that words are found in, as the history's window finds them, in their order; all of
/// them for no words. Blocks; for any thread.
QList<HistoryItem> findEntries(
    const QList<HistoryItem>& items, const TextFiles& texts, const QString& words);

/// As programs are told of an entry, in JSON or over the session bus: id, date, path, width,
/// height, scale, app, saved, and text where some was read in it.
QVariantMap valuesOf(const HistoryItem& item, const QString& text);
