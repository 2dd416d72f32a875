// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditKeeper.h"

#include "base/Words.h"
#include "capture/Files.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

using ClosingRules::Plan;
using EditKeeper::Edit;
using EditKeeper::Kept;

Result<QString> replaced(const Edit& edit)
{
    const QFileInfo file(edit.path);
    // To replace a file by another one needs no leave to write into it.
    if (file.exists() && !file.isWritable())
        return Error::failed(Words::tr("“%1” may not be changed.").arg(edit.path));
    const auto written = Files::write(edit.shot.image, edit.path, edit.shot.scale);
    return written ? Result<QString>(edit.path) : written.error();
}

Result<QString> savedBeside(const Edit& edit)
{
    const auto png = Files::encode(edit.shot.image, ImageType::Png, edit.shot.scale);
    if (!png)
        return png.error();
    const QFileInfo file(edit.path);
    return Files::saveNew(*png, file.path() + u'/' + file.completeBaseName(), u"png"_s);
}

Result<QString> savedAnew(const Edit& edit, const Prefs& prefs)
{
    const QString format = prefs.imageFormat();
    const auto bytes = Files::encode(edit.shot.image, Files::imageType(format), edit.shot.scale);
    if (!bytes)
        return bytes.error();
    return Files::save(
        *bytes, prefs.saveFolder(), format, u"Screenshot"_s, QDateTime::currentDateTime());
}

Result<QString> written(const EditorMeans& means, const Edit& edit, Plan::Write write)
{
    switch (write) {
    case Plan::Write::Nothing:
        break;
    case Plan::Write::Replace:
        return replaced(edit);
    case Plan::Write::Beside:
        return savedBeside(edit);
    case Plan::Write::NewFile:
        return savedAnew(edit, means.prefs);
    }
    return QString();
}

/// Whether the history has it now.
bool enter(const EditorMeans& means, const Shot& shot, Plan::Entry entry, const QByteArray& png,
    Kept& kept)
{
    if (entry == Plan::Entry::Update)
        return means.history.update(kept.historyId, shot.image, shot.scale, kept.path, png);
    kept.historyId = means.history.add(shot.image, shot.scale, kept.path, shot.app, png);
    return !kept.historyId.isEmpty();
}

} // namespace

Result<Kept> EditKeeper::keep(const EditorMeans& means, const Edit& edit, const Plan& plan)
{
    const auto path = written(means, edit, plan.write);
    if (!path)
        return path.error();
    Kept kept {*path, edit.historyId};
    const bool isCopyEntered = plan.entry != Plan::Entry::Nothing && kept.path.isEmpty();
    QByteArray png;
    if (plan.copies || isCopyEntered) {
        const auto encoded = Files::encode(edit.shot.image, ImageType::Png, edit.shot.scale);
        if (!encoded)
            return encoded.error();
        png = *encoded;
    }
    const bool isEntered
        = plan.entry == Plan::Entry::Nothing || enter(means, edit.shot, plan.entry, png, kept);
    if (!isEntered && isCopyEntered) {
        const auto anew = savedAnew(edit, means.prefs);
        if (!anew)
            return anew.error();
        kept.path = *anew;
    }
    if (plan.counts)
        means.fun.record(FunDeed::EditorClosed);
    if (plan.copies)
        Files::copy(means.clipboard, edit.shot.image, edit.shot.scale, png);
    return kept;
}
