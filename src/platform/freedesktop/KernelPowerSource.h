// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PowerSource.h"

#include <QString>

/// Reads what the kernel tells of batteries and chargers.
/// https://www.kernel.org/doc/Documentation/ABI/testing/sysfs-class-power
class KernelPowerSource final : public PowerSource {
public:
    explicit KernelPowerSource(QString folder = QStringLiteral("/sys/class/power_supply"));

    bool isPlugged() const override;

private:
    const QString m_folder;
};
