// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopAppearance.h"
#include "tests/TestFiles.h"
#include "tests/desktop/Waiting.h"

#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using AppearanceSources::PortalSettings;

namespace {

struct Rgb {
    double red, green, blue;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Rgb& color)
{
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Rgb& color)
{
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

/// A desktop portal with settings, on a session bus of its own.
class Portal final : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != u"ReadAll"_s)
            return false;
        asked = message.arguments().value(0).toStringList();
        return connection.send(message.createReply(QVariant::fromValue(settings)));
    }

    PortalSettings settings;
    QStringList asked;
};

class DesktopAppearanceTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        qDBusRegisterMetaType<Rgb>();
        qDBusRegisterMetaType<PortalSettings>();
        s_bus = std::make_unique<QProcess>();
        s_bus->start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        ASSERT_TRUE(s_bus->waitForReadyRead(15'000));
        qputenv("DBUS_SESSION_BUS_ADDRESS", s_bus->readLine().trimmed());
    }
    static void TearDownTestSuite()
    {
        s_bus->kill();
        s_bus->waitForFinished();
    }

    DesktopAppearanceTest()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
        qunsetenv("XDG_CURRENT_DESKTOP");
        qunsetenv("GTK_THEME");
    }

    void write(const QString& name, const QByteArray& content)
    {
        put(folder.filePath(name), content);
    }

    inline static std::unique_ptr<QProcess> s_bus;
    QTemporaryDir folder;
};

} // namespace

TEST(AppearanceSourcesTest, readsWhatDesktopsWrite)
{
    using namespace AppearanceSources;
    for (const auto& dark : {u"Adwaita-dark"_s, u"Adwaita:dark"_s, u"Yaru-Dark"_s, u"Breeze-Dark"_s,
             u"HighContrastInverse"_s})
        EXPECT_EQ(fromGtkTheme(dark).dark, true) << dark.toStdString();
    for (const auto& unsaid : {u"Adwaita"_s, u"Arc-Darker"_s, u""_s})
        EXPECT_FALSE(fromGtkTheme(unsaid).dark) << unsaid.toStdString();

    const auto gtk
        = fromGtkSettings(u"[Settings]\n# gtk-enable-animations=1\n"
                          "gtk-theme-name = Arc\ngtk-application-prefer-dark-theme=true\n"
                          "gtk-enable-animations=0\n"_s);
    EXPECT_EQ(gtk.dark, true);
    EXPECT_EQ(gtk.reducedMotion, true);
    EXPECT_FALSE(fromGtkSettings(u"gtk-application-prefer-dark-theme=1"_s).dark); // No group.

    const auto kde = fromKdeGlobals(u"[Colors:View]\nBackgroundNormal=255,255,255\n"
                                    "[Colors:Window]\nBackgroundNormal=42,46,50\n"
                                    "[General]\nAccentColor=61,174,233\nColorScheme=BreezeLight\n"
                                    "[KDE]\nAnimationDurationFactor=0\n"_s);
    EXPECT_EQ(kde.dark, true); // Colours rather than names.
    EXPECT_EQ(kde.accent, QColor(61, 174, 233));
    EXPECT_EQ(kde.reducedMotion, true);
    EXPECT_FALSE(fromKdeGlobals(u"[General]\nAccentColor=none\n"_s).accent);

    const PortalSettings gnome {{u"org.gnome.desktop.interface"_s,
        {{u"gtk-theme"_s, u"Yaru-dark"_s}, {u"enable-animations"_s, false},
            {u"text-scaling-factor"_s, 1.25}}}};
    const auto look = fromPortal(gnome);
    EXPECT_EQ(look.dark, true);
    EXPECT_EQ(look.reducedMotion, true);
    EXPECT_EQ(look.textScale, 1.25);
    EXPECT_FALSE(look.orElse(gtk).accent);
    auto light = gnome;
    light[u"org.freedesktop.appearance"_s][u"color-scheme"_s] = 2U;
    EXPECT_EQ(fromPortal(light).dark, false);
}

TEST_F(DesktopAppearanceTest, readsSettingsFilesAgainWhenTheyChange)
{
    write(u"gtk-3.0/settings.ini"_s, "[Settings]\ngtk-theme-name=Adwaita-dark\n");
    write(u"kdeglobals"_s, "[General]\nAccentColor=1,2,3\nColorScheme=BreezeLight\n");
    DesktopAppearance appearance(DesktopAppearance::TextScale::LeftToProgram);
    EXPECT_TRUE(appearance.current().dark); // At once.
    EXPECT_FALSE(appearance.current().accent); // Left behind by another desktop.

    int changes = 0;
    QObject::connect(&appearance, &Appearance::changed, [&] { ++changes; });
    for (const bool dark : {false, true, false}) { // Replaced, as toolkits do.
        write(u"new"_s, dark ? "[Settings]\ngtk-theme-name=Adwaita-dark\n" : "[Settings]\n");
        ASSERT_EQ(std::rename(QFile::encodeName(folder.filePath(u"new"_s)).constData(),
                      QFile::encodeName(folder.filePath(u"gtk-3.0/settings.ini"_s)).constData()),
            0);
        EXPECT_TRUE(waitFor([&] { return appearance.current().dark == dark; }));
    }
    EXPECT_EQ(changes, 3);

    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    const DesktopAppearance plasma(DesktopAppearance::TextScale::LeftToProgram);
    EXPECT_EQ(plasma.current(), (DesktopLook {.dark = false, .accent = QColor(1, 2, 3)}));
}

TEST_F(DesktopAppearanceTest, followsThePortal)
{
    const auto common = u"org.freedesktop.appearance"_s;
    Portal portal;
    portal.settings[common] = {{u"color-scheme"_s, 1U},
        {u"accent-color"_s, QVariant::fromValue(Rgb {1, 0.5, 0})}, {u"contrast"_s, 1U}};
    portal.settings[u"org.gnome.desktop.interface"_s] = {{u"text-scaling-factor"_s, 1.5}};
    auto bus = QDBusConnection::connectToBus(
        QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), u"portal"_s);
    ASSERT_TRUE(bus.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, &portal));
    ASSERT_TRUE(bus.registerService(u"org.freedesktop.portal.Desktop"_s));

    DesktopAppearance appearance(DesktopAppearance::TextScale::LeftToProgram);
    const DesktopAppearance underX11(DesktopAppearance::TextScale::InScreenScale);
    EXPECT_EQ(appearance.current(), DesktopLook {}); // Without waiting for the portal.
    ASSERT_TRUE(waitFor([&] { return appearance.current().dark && underX11.current().dark; }));
    EXPECT_THAT(portal.asked, testing::Contains(common));
    EXPECT_EQ(appearance.current().accent->name(), u"#ff8000"_s);
    EXPECT_TRUE(appearance.current().highContrast);
    EXPECT_EQ(appearance.current().textScale, 1.5);
    EXPECT_EQ(underX11.current().textScale, 1);

    const auto announce = [&](const QString& key, const QVariant& value) {
        auto signal = QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
            u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal << common << key << QVariant::fromValue(QDBusVariant(value));
        bus.send(signal);
    };
    announce(u"color-scheme"_s, 2U);
    announce(u"accent-color"_s, QVariant::fromValue(Rgb {-1, -1, -1}));
    EXPECT_TRUE(waitFor(
        [&] { return !appearance.current().dark && !appearance.current().accent.has_value(); }));
    QDBusConnection::disconnectFromBus(u"portal"_s);
}
