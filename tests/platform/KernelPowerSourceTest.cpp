// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/KernelPowerSource.h"

#include "tests/TestFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(KernelPowerSourceTest, aBatteryCountsWhereItFeedsTheMachine)
{
    struct Supply {
        QString name;
        QByteArray type, state;
        QByteArray scope = {};
    };
    struct Case {
        QList<Supply> supplies;
        bool isPlugged;
    };
    const Supply charger {u"AC"_s, "Mains", "1"}, noCharger {u"AC"_s, "Mains", "0"};
    const Supply used {u"BAT0"_s, "Battery", "Discharging"}, full {u"BAT1"_s, "Battery", "Full"};
    const Supply mouse {u"hidpp"_s, "Battery", "Discharging", "Device"};
    for (const auto& each :
        {Case {{}, true}, Case {{noCharger, used}, false}, Case {{charger, used}, true},
            Case {{used, full}, false}, Case {{noCharger, full}, true}, Case {{mouse}, true},
            Case {{used, {u"usb"_s, "USB", "1"}}, true}}) {
        const QTemporaryDir folder;
        for (const auto& supply : each.supplies) {
            const QString path = folder.filePath(supply.name) + u'/';
            put(path + u"type"_s, supply.type + '\n');
            put(path + (supply.type == "Battery" ? u"status"_s : u"online"_s), supply.state + '\n');
            if (!supply.scope.isEmpty())
                put(path + u"scope"_s, supply.scope + '\n');
        }
        EXPECT_EQ(KernelPowerSource(folder.path()).isPlugged(), each.isPlugged)
            << each.supplies.size();
    }
    EXPECT_TRUE(KernelPowerSource(u"/nowhere"_s).isPlugged());
}
