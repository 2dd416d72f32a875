// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/text/FoundLine.h"

/// Puts right what Tesseract often takes for something else in the letters of screens: an "I"
/// without serifs for a bar, the start of an address, some of the straight quotation marks of
/// a page for curly ones.
void correctMisreadings(QList<FoundLine>& lines);
