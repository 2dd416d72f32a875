// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryCatalogue.h"

#include <functional>

/// What cards of the history say in words.
namespace CardText {

/// "2:05 PM  •  3840 × 2160"
QString line(const HistoryItem& item, const DayCalendar& calendar);

/// Where the query of the catalogue is found: in the name of the program or file, in the date, or
/// in the text of the capture.
/// @param textOf what was read in the capture of an id.
QString found(const HistoryItem& item, HistoryCatalogue& catalogue,
    const std::function<QString(const QString& id)>& textOf);

/// The part of a text around what is found in it.
QString around(const QString& text, const QString& wanted);

} // namespace CardText
