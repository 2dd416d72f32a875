// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/DoctorRules.h"

#include "base/Words.h"
#include "update/UpdateRules.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A tint rather than something else on top of the pattern.
constexpr int largestTint = 16;

/// Some hundred captures of a large screen.
constexpr qint64 leastSpace = qint64(256) << 20;

QString reinstall()
{
    return Words::tr("Install Pixmallow again, with all of its parts.");
}

/// What the network has to say may lack its full stop.
QString sentence(const QString& text)
{
    return text.endsWith(u'.') ? text : text + u'.';
}

/// "18.5 GiB"
QString sizeText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1);
}

/// Those whose names are translated; others go by their English name.
[[maybe_unused]] constexpr const char* languages[]
    = {QT_TRANSLATE_NOOP("Words", "Arabic"), QT_TRANSLATE_NOOP("Words", "Chinese"),
        QT_TRANSLATE_NOOP("Words", "Czech"), QT_TRANSLATE_NOOP("Words", "Danish"),
        QT_TRANSLATE_NOOP("Words", "Dutch"), QT_TRANSLATE_NOOP("Words", "English"),
        QT_TRANSLATE_NOOP("Words", "Finnish"), QT_TRANSLATE_NOOP("Words", "French"),
        QT_TRANSLATE_NOOP("Words", "German"), QT_TRANSLATE_NOOP("Words", "Greek"),
        QT_TRANSLATE_NOOP("Words", "Hebrew"), QT_TRANSLATE_NOOP("Words", "Hindi"),
        QT_TRANSLATE_NOOP("Words", "Hungarian"), QT_TRANSLATE_NOOP("Words", "Italian"),
        QT_TRANSLATE_NOOP("Words", "Japanese"), QT_TRANSLATE_NOOP("Words", "Korean"),
        QT_TRANSLATE_NOOP("Words", "Norwegian Bokmål"), QT_TRANSLATE_NOOP("Words", "Polish"),
        QT_TRANSLATE_NOOP("Words", "Portuguese"), QT_TRANSLATE_NOOP("Words", "Romanian"),
        QT_TRANSLATE_NOOP("Words", "Russian"), QT_TRANSLATE_NOOP("Words", "Spanish"),
        QT_TRANSLATE_NOOP("Words", "Swedish"), QT_TRANSLATE_NOOP("Words", "Turkish"),
        QT_TRANSLATE_NOOP("Words", "Ukrainian"), QT_TRANSLATE_NOOP("Words", "Vietnamese")};

/// "German", or the name of the data where nobody knows it.
QString languageName(const QString& model)
{
    const auto language = QLocale::codeToLanguage(model.section(u'_', 0, 0));
    return language == QLocale::AnyLanguage
        ? model
        : Words::tr(QLocale::languageToString(language).toUtf8());
}

QString languageNames(const QStringList& models)
{
    QStringList names;
    for (const auto& model : models)
        names << languageName(model);
    names.removeDuplicates();
    return names.join(u", "_s);
}

QString packages(const QStringList& models)
{
    QStringList names;
    for (auto model : models)
        names << u"tesseract-ocr-"_s + model.replace(u'_', u'-');
    return names.join(u" "_s);
}

DoctorCheck shortcutCheck(const DoctorFacts::Shortcut& shortcut)
{
    const auto& info = infoOf(shortcut.kind);
    const QString title = shortcut.kind == CaptureKind::Delayed ? Words::tr("Delayed capture")
                                                                : Words::tr(info.title);
    return {u"shortcut."_s + info.key, Words::tr("Shortcut “%1”").arg(title), {}};
}

QString adviceOnRefusal(const DoctorFacts::Desktop& desktop, const DoctorFacts::Shortcut& shortcut)
{
    const auto& combo = *shortcut.combo;
    if (keyPositions(combo.keyCode).empty())
        return Words::tr("Choose another shortcut: no keyboard has this key.");
    for (const auto& other : desktop.shortcuts)
        if (other.kind != shortcut.kind && other.combo && other.combo->chord() == combo.chord())
            return Words::tr("Choose another shortcut: two captures cannot have the same one.");
    return desktop.isResident
        ? Words::tr("Choose another shortcut in the settings, or take it from the other program "
                    "and restart "
                    "Pixmallow with 'pixmallow --replace'.")
        : Words::tr("Choose another shortcut in the settings, or take it from the other program.");
}

DoctorCheck judgeShortcut(
    const DoctorFacts::Desktop& desktop, const DoctorFacts::Shortcut& shortcut)
{
    auto check = shortcutCheck(shortcut);
    if (!shortcut.combo) {
        check.detail = Words::tr("None is set.");
    } else if (!desktop.residentProblem.isEmpty()) {
        check.detail
            = Words::tr("Pixmallow runs, but does not tell: %1").arg(desktop.residentProblem);
        check.advice = Words::tr("Restart it with 'pixmallow --replace'.");
    } else if (shortcut.isRefused) {
        check.advice = adviceOnRefusal(desktop, shortcut);
        check.detail
            = Words::tr("%1 was refused by the system; most likely another program has it.")
                  .arg(shortcut.combo->spelled());
    } else {
        check.detail = (desktop.isResident ? Words::tr("%1 works.") : Words::tr("%1 is free."))
                           .arg(shortcut.combo->spelled());
    }
    return check;
}

DoctorCheck judgeCopies(const DoctorFacts::Desktop& desktop)
{
    DoctorCheck check {u"clipboard"_s, Words::tr("Clipboard"), {}};
    if (!desktop.copies) {
        check.detail = desktop.copies.error().message;
        check.advice = Words::tr("Restart the session; until then captures reach files only.");
    } else {
        check.detail = desktop.keepsCopies
            ? Words::tr("A copy reaches other programs, and a clipboard manager keeps it.")
            : Words::tr("A copy reaches other programs, as long as Pixmallow runs.");
    }
    return check;
}

DoctorCheck judgeTray(const DoctorFacts::Desktop& desktop)
{
    if (desktop.hasTray)
        return {u"tray"_s, Words::tr("Tray"),
            Words::tr("There is a tray, which shows Pixmallow's icon.")};
    return {u"tray"_s, Words::tr("Tray"), Words::tr("No tray is there to show Pixmallow's icon."),
        Words::tr(
            "Add a tray to your panel. Without one, start Pixmallow again to open its menu.")};
}

DoctorCheck judgeCompositing(const DoctorFacts::Desktop& desktop)
{
    return {u"compositor"_s, Words::tr("Compositor"),
        desktop.isComposited ? Words::tr("One runs, so cards have shadows and effects are whole.")
                             : Words::tr("None runs, so cards have no shadows and effects are "
                                         "plain. Captures do not need one.")};
}

QList<DoctorCheck> judgeDesktop(const DoctorFacts::Desktop& desktop)
{
    QList<DoctorCheck> checks;
    if (!desktop.isPermitted)
        checks << DoctorCheck {u"permission"_s, Words::tr("Permission"),
            Words::tr("The screen may not be captured."),
            Words::tr("Permit Pixmallow to capture the screen in the settings of the system.")};
    for (int number = 0; const auto& screen : desktop.screens)
        checks << DoctorRules::judge(screen, ++number);
    if (desktop.screens.isEmpty())
        checks << DoctorCheck {u"screens"_s, Words::tr("Screens"),
            Words::tr("The desktop has no screen."), Words::tr("Connect or switch on a screen.")};
    checks << DoctorRules::judgeShortcuts(desktop);
    return checks << judgeCopies(desktop) << judgeTray(desktop) << judgeCompositing(desktop);
}

DoctorCheck judgeFaces(const Result<void>& faces)
{
    if (faces)
        return {u"faces"_s, Words::tr("Faces"), Words::tr("They can be found in captures.")};
    return {u"faces"_s, Words::tr("Faces"), faces.error().message, reinstall()};
}

} // namespace

QList<DoctorCheck> DoctorRules::judge(const DoctorFacts& facts)
{
    QList<DoctorCheck> checks;
    if (facts.desktop)
        checks << judgeDesktop(*facts.desktop);
    else
        checks << DoctorCheck {u"desktop"_s, Words::tr("Desktop"), facts.desktop.error().message,
            Words::tr("Run this in a terminal of the desktop that is to be captured.")};
    checks << judgeText(facts.languages, facts.reading) << judgeFaces(facts.faces)
           << judge(facts.sound);
    for (const auto& folder : facts.folders)
        checks << judge(folder);
    return checks << judgeSpace(facts.saveFolder, facts.freeBytes) << judge(facts.updates);
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Screen& screen, int number)
{
    const QString size = u"%1 × %2"_s.arg(screen.size.width()).arg(screen.size.height());
    DoctorCheck check {u"screen.%1"_s.arg(number),
        Words::tr("Screen %1 (%2)").arg(number).arg(screen.name),
        Words::tr("%1 pixels at scale %2.").arg(size).arg(screen.scale) + u' '};
    if (!screen.captured) {
        check.detail += screen.captured.error().message;
        check.advice
            = Words::tr("Restart the session. If that does not help, see the requirements: the "
                        "desktop may lack something.");
        return check;
    }
    const auto& found = *screen.captured;
    if (found.wrong == 0) {
        check.detail += Words::tr("A pattern was captured exactly as it was drawn.");
    } else if (found.isBlack) {
        check.detail += Words::tr("What is captured is black.");
        check.advice
            = Words::tr("Something keeps the screen from being read, such as a screen lock or a "
                        "remote desktop; end it and try again.");
    } else if (found.largestDifference <= largestTint) {
        check.detail += Words::tr("Colours are captured up to %1 of 255 steps off.")
                            .arg(found.largestDifference);
        check.advice
            = Words::tr("Set the screen to a colour depth of 24 bits, and switch off what changes "
                        "its colours.");
    } else {
        check.detail += Words::tr("Of a pattern of %1 pixels, %2 were captured differently.")
                            .arg(found.pixels)
                            .arg(found.wrong);
        check.advice = Words::tr(
            "Something covers the top left corner of this screen, or changes how windows "
            "look; close it and try again.");
    }
    return check;
}

QList<DoctorCheck> DoctorRules::judgeShortcuts(const DoctorFacts::Desktop& desktop)
{
    QList<DoctorCheck> checks;
    for (const auto& shortcut : desktop.shortcuts)
        checks << judgeShortcut(desktop, shortcut);
    return checks;
}

DoctorCheck DoctorRules::judgeText(
    const Result<TextLanguages>& languages, const Result<void>& reading)
{
    DoctorCheck check {u"text"_s, Words::tr("Text recognition"), {}};
    if (!languages) {
        check.detail = languages.error().message;
        check.advice = reinstall();
    } else if (languages->read.isEmpty()) {
        check.detail = Words::tr("The data of no language is installed.");
        check.advice
            = Words::tr("Install the Debian package %1.").arg(packages(languages->missing));
    } else if (!reading) {
        check.detail = reading.error().message;
        check.advice = Words::tr("Install the data of these languages again: %1.")
                           .arg(packages(languages->read));
    } else {
        check.detail = Words::tr("Reads %1.").arg(languageNames(languages->read));
        if (!languages->missing.isEmpty()) {
            check.detail
                += u' ' + Words::tr("Cannot read %1.").arg(languageNames(languages->missing));
            check.advice
                = Words::tr("Install the Debian package %1.").arg(packages(languages->missing));
        }
    }
    return check;
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Sound& sound)
{
    DoctorCheck check {u"sound"_s, Words::tr("Sound"), {}};
    if (sound.server) {
        check.detail = Words::tr("The sound server answers: %1.").arg(*sound.server);
    } else {
        check.detail = sound.server.error().message;
        if (sound.isWanted)
            check.advice = Words::tr(
                "Start a sound server such as PipeWire, or switch the sound off in the settings.");
        else
            check.detail += u' ' + Words::tr("Sound is switched off anyway.");
    }
    return check;
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Folder& folder)
{
    DoctorCheck check {u"folder."_s + folder.id, folder.title, {}};
    if (folder.problem.isEmpty()) {
        check.detail = Words::tr("“%1” can be written to.").arg(folder.path);
    } else {
        check.detail = Words::tr("“%1” cannot be used. %2").arg(folder.path, folder.problem);
        check.advice = Words::tr("Make room there, or give yourself the right to write there.");
    }
    return check;
}

DoctorCheck DoctorRules::judgeSpace(const QString& folder, qint64 freeBytes)
{
    DoctorCheck check {u"space"_s, Words::tr("Free space"), {}};
    if (freeBytes < 0) {
        check.detail = Words::tr("How much room there is for captures is not known.");
    } else {
        check.detail = Words::tr("There is room for %1 in “%2”.").arg(sizeText(freeBytes), folder);
        if (freeBytes < leastSpace)
            check.advice = Words::tr("Delete something, or choose another folder for captures.");
    }
    return check;
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Updates& updates)
{
    DoctorCheck check {u"update"_s, Words::tr("Updates"), {}};
    if (!UpdateRules::isSafe(updates.feed)) {
        check.detail = Words::tr("“%1” is no safe address.").arg(updates.feed);
        check.advice = Words::tr(
            "Correct the address in PIXMALLOW_UPDATE_FEED: it has to begin with https.");
    } else if (!updates.published) {
        check.detail = updates.areWanted
            ? Words::tr("“%1” is a safe address. With --online it is asked.").arg(updates.feed)
            : Words::tr("“%1” is a safe address. Looking for updates is switched off.")
                  .arg(updates.feed);
    } else if (!*updates.published) {
        check.detail = Words::tr("Asking “%1” failed: %2")
                           .arg(updates.feed, sentence(updates.published->error().message));
        check.advice = Words::tr(
            "See whether this computer is connected to the network, and try again later.");
    } else {
        const QString version = **updates.published;
        check.detail = version.isEmpty()
            ? Words::tr("“%1” answers; it has no version for this system.").arg(updates.feed)
            : Words::tr("“%1” answers; it has version %2.").arg(updates.feed, version);
    }
    return check;
}
