// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/Layers.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whose the edits of files are that are in no history.
const QString nobody = u"00000000-0000-0000-0000-000000000000"_s;

// An entry's picture, and what was saved, copied or shared of it on the way.
constexpr qsizetype mostOfEntry = 8;
constexpr qsizetype mostOfNobody = 32;

constexpr qsizetype mostStrays = 4;

const QString& ownerOf(const QString& historyId)
{
    return historyId.isEmpty() ? nobody : historyId;
}

} // namespace

Result<void> Layers::store(const PixelHash& exported, const KeptEdit& edit)
{
    const QString owner = ownerOf(edit.capture.historyId);
    if (const auto written = m_folder.write({owner, exported.text()}, edit); !written)
        return written;
    forgetOldest(owner, owner == nobody ? mostOfNobody : mostOfEntry);
    m_folder.tidy(owner);
    return {};
}

std::optional<KeptEdit> Layers::find(const PixelHash& picture, const QString& historyId) const
{
    const QString owner = ownerOf(historyId);
    auto names = m_folder.records();
    std::stable_partition(names.begin(), names.end(),
        [&](const EditFolder::Name& name) { return name.owner == owner; });
    for (const auto& name : names)
        if (name.key == picture.text())
            if (auto edit = m_folder.read(name))
                return *std::move(edit);
    return historyId.isEmpty() ? std::nullopt : newestMadeOf(picture, owner);
}

std::optional<KeptEdit> Layers::newestMadeOf(const PixelHash& base, const QString& owner) const
{
    std::optional<EditFolder::Name> newest;
    qint64 time = 0;
    for (const auto& name : m_folder.records()) {
        if (name.owner != owner)
            continue;
        const auto record = m_folder.readRecord(name);
        if (record && record->base == base && record->time >= time) {
            newest = name;
            time = record->time;
        }
    }
    if (!newest)
        return std::nullopt;
    auto edit = m_folder.read(*newest);
    return edit ? std::optional(*std::move(edit)) : std::nullopt;
}

void Layers::forgetOldest(const QString& owner, qsizetype most) const
{
    QList<std::pair<qint64, EditFolder::Name>> kept;
    for (const auto& name : m_folder.records())
        if (name.owner == owner)
            if (const auto record = m_folder.readRecord(name))
                kept.append({record->time, name});
    if (kept.size() <= most)
        return;
    std::ranges::sort(kept, {}, [](const auto& each) { return each.first; });
    for (const auto& [time, name] : kept.first(kept.size() - most))
        m_folder.remove(name);
}

void Layers::removeStrays(const QStringList& historyIds) const
{
    m_folder.removeUnfinished();
    const QSet<QString> known(historyIds.begin(), historyIds.end());
    QSet<QString> strays;
    for (const auto& name : m_folder.records())
        if (name.owner != nobody && !known.contains(name.owner))
            strays.insert(name.owner);
    if (strays.size() <= mostStrays)
        m_folder.removeOwners(strays.values());
}
