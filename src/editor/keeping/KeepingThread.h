// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "editor/keeping/Layers.h"

#include <QThreadPool>

#include <functional>

/// The one thread on which kept edits are written and read, one thing after the other, so that
/// whoever asks for an edit finds what was told before. Its end waits until all is written.
class KeepingThread final {
public:
    KeepingThread(const Folders& folders, const Prefs& prefs)
        : m_prefs(prefs)
        , m_layers(folders)
        , m_journals(folders.data + QStringLiteral("/Journals"))
    {
        m_pool.setMaxThreadCount(1);
    }

    /// The user wants traces of what they do to be kept. Main thread only.
    bool keepsJournals() const { return m_prefs.get(Prefs::keys.historyEnabled); }
    bool keepsLayers() const
    {
        return keepsJournals() && m_prefs.get(Prefs::keys.keepEditsEditable);
    }

    void run(std::function<void()> work) { m_pool.start(std::move(work)); }

    void waitForAll() { m_pool.waitForDone(); }

    // For work that run() was given.
    Layers& layers() { return m_layers; }
    EditFolder& journals() { return m_journals; }

    /// Told on the thread why something could not be written. Set before anything runs.
    std::function<void(const QString& why)> onFailure;

private:
    const Prefs& m_prefs;
    Layers m_layers;
    EditFolder m_journals;
    QThreadPool m_pool; ///< Last: ends before what its work uses.
};
