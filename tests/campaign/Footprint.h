// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>
#include <xcb/xcb.h>

/// What a process takes at a moment.
struct Footprint {
    qint64 memory = 0; ///< Resident, bytes.
    qint64 share = 0; ///< Of that what counts as its own, bytes: what others share is divided.
    qint64 files = 0; ///< Open descriptors.
    qint64 threads = 0;
    qint64 resources = 0; ///< What it has in the X server: windows, pixmaps, contexts and so on.
    qint64 pixmaps = 0; ///< What the X server keeps for it in pixmaps, bytes.

    /// @param server another connection to the display that the process uses
    static Footprint of(qint64 process, xcb_connection_t* server);

    /// Each of its figures the median of the samples'; there is at least one.
    static Footprint median(const std::vector<Footprint>& samples);
};
