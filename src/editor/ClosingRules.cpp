// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/ClosingRules.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

using ClosingRules::Plan;

bool isWrittenBack(const QString& path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    return extension == u"png"_s || extension == u"jpg"_s || extension == u"jpeg"_s;
}

Plan::Write writeFor(const ClosingRules::Situation& situation)
{
    if (situation.isSavedElsewhere)
        return Plan::Write::Nothing;
    if (!situation.path.isEmpty())
        return isWrittenBack(situation.path) ? Plan::Write::Replace : Plan::Write::Beside;
    const bool isKeptInHistory = situation.isInHistory || situation.keepsHistory;
    return isKeptInHistory ? Plan::Write::Nothing : Plan::Write::NewFile;
}

Plan::Entry entryFor(const ClosingRules::Situation& situation)
{
    if (situation.isInHistory)
        return Plan::Entry::Update;
    const bool isAdded = situation.path.isEmpty() && situation.keepsHistory;
    return isAdded ? Plan::Entry::Add : Plan::Entry::Nothing;
}

} // namespace

ClosingRules::Plan ClosingRules::plan(const Situation& situation)
{
    if (!situation.isEdited)
        return {};
    return {
        writeFor(situation), entryFor(situation), situation.copies && !situation.isCopied, true};
}
