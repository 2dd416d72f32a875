// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStringList>

/// Which cards are selected, and which one the keyboard is on. Entries are known by their ids, so
/// that others may come and go.
class CardSelection final {
public:
    enum class How {
        Alone, ///< Only this one from now on.
        Toggled, ///< This one is selected or no longer, the others stay as they are.
        UpTo, ///< All from where the last of the other kinds happened up to this one, no others.
    };

    /// @param ids of all cards, in their order.
    void choose(const QStringList& ids, int index, How how);
    void chooseAll(const QStringList& ids);
    void clear();

    /// Forgets those that are gone. Where the current one is, the one in its place takes over.
    void follow(const QStringList& ids);

    bool contains(const QString& id) const { return m_chosen.contains(id); }
    int count() const { return int(m_chosen.size()); }
    int current() const { return m_current; } ///< Its place; −1 where there is none.

private:
    QSet<QString> m_chosen;
    QString m_currentId, m_anchorId;
    int m_current = -1;
};
