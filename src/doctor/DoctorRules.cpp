// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/DoctorRules.h"

#include "update/UpdateRules.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A tint rather than something else on top of the pattern.
constexpr int largestTint = 16;

/// Some hundred captures of a large screen.
constexpr qint64 leastSpace = qint64(256) << 20;

const QString reinstall = u"Install Pixmallow again, with all of its parts."_s;

/// What the network has to say may lack its full stop.
QString sentence(const QString& text)
{
    return text.endsWith(u'.') ? text : text + u'.';
}

/// "18.5 GiB"
QString sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1);
}

/// "German", or the name of the data where nobody knows it.
QString languageName(const QString& model)
{
    const auto language = QLocale::codeToLanguage(model.section(u'_', 0, 0));
    return language == QLocale::AnyLanguage ? model : QLocale::languageToString(language);
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
    const QString title = shortcut.kind == CaptureKind::Delayed ? u"Delayed capture"_s : info.title;
    return {u"shortcut."_s + info.key, u"Shortcut “%1”"_s.arg(title), {}};
}

QString adviceOnRefusal(const DoctorFacts::Desktop& desktop, const DoctorFacts::Shortcut& shortcut)
{
    const auto& combo = *shortcut.combo;
    if (keyPositions(combo.keyCode).empty())
        return u"Choose another shortcut: no keyboard has this key."_s;
    for (const auto& other : desktop.shortcuts)
        if (other.kind != shortcut.kind && other.combo && other.combo->chord() == combo.chord())
            return u"Choose another shortcut: two captures cannot have the same one."_s;
    return desktop.isResident
        ? u"Choose another shortcut in the settings, or take it from the other program and restart "
          "Pixmallow with 'pixmallow --replace'."_s
        : u"Choose another shortcut in the settings, or take it from the other program."_s;
}

DoctorCheck judgeShortcut(
    const DoctorFacts::Desktop& desktop, const DoctorFacts::Shortcut& shortcut)
{
    auto check = shortcutCheck(shortcut);
    if (!shortcut.combo) {
        check.detail = u"None is set."_s;
    } else if (!desktop.residentProblem.isEmpty()) {
        check.detail = u"Pixmallow runs, but does not tell: "_s + desktop.residentProblem;
        check.advice = u"Restart it with 'pixmallow --replace'."_s;
    } else if (shortcut.isRefused) {
        check.advice = adviceOnRefusal(desktop, shortcut);
        check.detail = u"%1 was refused by the system; most likely another program has it."_s.arg(
            shortcut.combo->spelled());
    } else {
        check.detail = (desktop.isResident ? u"%1 works."_s : u"%1 is free."_s)
                           .arg(shortcut.combo->spelled());
    }
    return check;
}

DoctorCheck judgeCopies(const DoctorFacts::Desktop& desktop)
{
    DoctorCheck check {u"clipboard"_s, u"Clipboard"_s, {}};
    if (!desktop.copies) {
        check.detail = desktop.copies.error().message;
        check.advice = u"Restart the session; until then captures reach files only."_s;
    } else {
        check.detail = desktop.keepsCopies
            ? u"A copy reaches other programs, and a clipboard manager keeps it."_s
            : u"A copy reaches other programs, as long as Pixmallow runs."_s;
    }
    return check;
}

DoctorCheck judgeTray(const DoctorFacts::Desktop& desktop)
{
    if (desktop.hasTray)
        return {u"tray"_s, u"Tray"_s, u"There is a tray, which shows Pixmallow's icon."_s};
    return {u"tray"_s, u"Tray"_s, u"No tray is there to show Pixmallow's icon."_s,
        u"Add a tray to your panel. Without one, start Pixmallow again to open its menu."_s};
}

DoctorCheck judgeCompositing(const DoctorFacts::Desktop& desktop)
{
    return {u"compositor"_s, u"Compositor"_s,
        desktop.isComposited
            ? u"One runs, so cards have shadows and effects are whole."_s
            : u"None runs, so cards have no shadows and effects are plain. Captures do not need one."_s};
}

QList<DoctorCheck> judgeDesktop(const DoctorFacts::Desktop& desktop)
{
    QList<DoctorCheck> checks;
    if (!desktop.isPermitted)
        checks << DoctorCheck {u"permission"_s, u"Permission"_s,
            u"The screen may not be captured."_s,
            u"Permit Pixmallow to capture the screen in the settings of the system."_s};
    for (int number = 0; const auto& screen : desktop.screens)
        checks << DoctorRules::judge(screen, ++number);
    if (desktop.screens.isEmpty())
        checks << DoctorCheck {u"screens"_s, u"Screens"_s, u"The desktop has no screen."_s,
            u"Connect or switch on a screen."_s};
    checks << DoctorRules::judgeShortcuts(desktop);
    return checks << judgeCopies(desktop) << judgeTray(desktop) << judgeCompositing(desktop);
}

DoctorCheck judgeFaces(const Result<void>& faces)
{
    if (faces)
        return {u"faces"_s, u"Faces"_s, u"They can be found in captures."_s};
    return {u"faces"_s, u"Faces"_s, faces.error().message, reinstall};
}

} // namespace

QList<DoctorCheck> DoctorRules::judge(const DoctorFacts& facts)
{
    QList<DoctorCheck> checks;
    if (facts.desktop)
        checks << judgeDesktop(*facts.desktop);
    else
        checks << DoctorCheck {u"desktop"_s, u"Desktop"_s, facts.desktop.error().message,
            u"Run this in a terminal of the desktop that is to be captured."_s};
    checks << judgeText(facts.languages, facts.reading) << judgeFaces(facts.faces)
           << judge(facts.sound);
    for (const auto& folder : facts.folders)
        checks << judge(folder);
    return checks << judgeSpace(facts.saveFolder, facts.freeBytes) << judge(facts.updates);
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Screen& screen, int number)
{
    const QString size = u"%1 × %2"_s.arg(screen.size.width()).arg(screen.size.height());
    DoctorCheck check {u"screen.%1"_s.arg(number), u"Screen %1 (%2)"_s.arg(number).arg(screen.name),
        u"%1 pixels at scale %2. "_s.arg(size).arg(screen.scale)};
    if (!screen.captured) {
        check.detail += screen.captured.error().message;
        check.advice = u"Restart the session. If that does not help, see the requirements: the "
                       "desktop may lack something."_s;
        return check;
    }
    const auto& found = *screen.captured;
    if (found.wrong == 0) {
        check.detail += u"A pattern was captured exactly as it was drawn."_s;
    } else if (found.isBlack) {
        check.detail += u"What is captured is black."_s;
        check.advice = u"Something keeps the screen from being read, such as a screen lock or a "
                       "remote desktop; end it and try again."_s;
    } else if (found.largestDifference <= largestTint) {
        check.detail
            += u"Colours are captured up to %1 of 255 steps off."_s.arg(found.largestDifference);
        check.advice = u"Set the screen to a colour depth of 24 bits, and switch off what changes "
                       "its colours."_s;
    } else {
        check.detail
            += u"Of a pattern of %1 pixels, %2 were captured differently."_s.arg(found.pixels)
                   .arg(found.wrong);
        check.advice
            = u"Something covers the top left corner of this screen, or changes how windows "
              "look; close it and try again."_s;
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
    DoctorCheck check {u"text"_s, u"Text recognition"_s, {}};
    if (!languages) {
        check.detail = languages.error().message;
        check.advice = reinstall;
    } else if (languages->read.isEmpty()) {
        check.detail = u"The data of no language is installed."_s;
        check.advice = u"Install the Debian package %1."_s.arg(packages(languages->missing));
    } else if (!reading) {
        check.detail = reading.error().message;
        check.advice
            = u"Install the data of these languages again: %1."_s.arg(packages(languages->read));
    } else {
        check.detail = u"Reads %1."_s.arg(languageNames(languages->read));
        if (!languages->missing.isEmpty()) {
            check.detail += u" Cannot read %1."_s.arg(languageNames(languages->missing));
            check.advice = u"Install the Debian package %1."_s.arg(packages(languages->missing));
        }
    }
    return check;
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Sound& sound)
{
    DoctorCheck check {u"sound"_s, u"Sound"_s, {}};
    if (sound.server) {
        check.detail = u"The sound server answers: %1."_s.arg(*sound.server);
    } else {
        check.detail = sound.server.error().message;
        if (sound.isWanted)
            check.advice
                = u"Start a sound server such as PipeWire, or switch the sound off in the settings."_s;
        else
            check.detail += u" Sound is switched off anyway."_s;
    }
    return check;
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Folder& folder)
{
    DoctorCheck check {u"folder."_s + folder.id, folder.title, {}};
    if (folder.problem.isEmpty()) {
        check.detail = u"“%1” can be written to."_s.arg(folder.path);
    } else {
        check.detail = u"“%1” cannot be used. %2"_s.arg(folder.path, folder.problem);
        check.advice = u"Make room there, or give yourself the right to write there."_s;
    }
    return check;
}

DoctorCheck DoctorRules::judgeSpace(const QString& folder, qint64 freeBytes)
{
    DoctorCheck check {u"space"_s, u"Free space"_s, {}};
    if (freeBytes < 0) {
        check.detail = u"How much room there is for captures is not known."_s;
    } else {
        check.detail = u"There is room for %1 in “%2”."_s.arg(sizeText(freeBytes), folder);
        if (freeBytes < leastSpace)
            check.advice = u"Delete something, or choose another folder for captures."_s;
    }
    return check;
}

DoctorCheck DoctorRules::judge(const DoctorFacts::Updates& updates)
{
    DoctorCheck check {u"update"_s, u"Updates"_s, {}};
    if (!UpdateRules::isSafe(updates.feed)) {
        check.detail = u"“%1” is no safe address."_s.arg(updates.feed);
        check.advice
            = u"Correct the address in PIXMALLOW_UPDATE_FEED: it has to begin with https."_s;
    } else if (!updates.published) {
        check.detail = u"“%1” is a safe address."_s.arg(updates.feed);
        check.detail += updates.areWanted ? u" With --online it is asked."_s
                                          : u" Looking for updates is switched off."_s;
    } else if (!*updates.published) {
        check.detail = u"Asking “%1” failed: %2"_s.arg(
            updates.feed, sentence(updates.published->error().message));
        check.advice
            = u"See whether this computer is connected to the network, and try again later."_s;
    } else {
        const QString version = **updates.published;
        check.detail = version.isEmpty()
            ? u"“%1” answers; it has no version for this system."_s.arg(updates.feed)
            : u"“%1” answers; it has version %2."_s.arg(updates.feed, version);
    }
    return check;
}
