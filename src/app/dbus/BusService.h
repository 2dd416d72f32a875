// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/dbus/BusObject.h"

/// Puts the program on the session bus under its name, soon: a start does not wait for it. If
/// another process has the name, as one that is just ending does, it comes over when that goes.
/// Where there is no session bus, nothing happens. Lives on the main thread.
class BusService final : public QObject {
public:
    explicit BusService(BusObject::Means means);

private:
    void appear();
    void tellBusy(bool isBusy) const;

    BusObject m_object;
};
