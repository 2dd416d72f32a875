// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/ShotOperations.h"

#include "base/Words.h"
#include "base/Worker.h"
#include "capture/Files.h"
#include "widgets/ShareMenu.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Asks for a name in the save folder. Answers once the picture is written there.
void ask(QFileDialog& dialog, const Shot& shot, ShotActions::Told::Answer answer)
{
    const auto shared = std::make_shared<ShotActions::Told::Answer>(std::move(answer));
    QObject::connect(&dialog, &QDialog::rejected, [shared] { (*shared)(Error::cancelled()); });
    QObject::connect(&dialog, &QFileDialog::fileSelected, [shared, shot](const QString& path) {
        auto write = [shot, path]() -> Result<QString> {
            if (const auto written = Files::write(shot.image, path, shot.scale); !written)
                return written.error();
            return Words::tr("Saved %1").arg(QFileInfo(path).fileName());
        };
        runOnWorker(write).then([shared](const Result<QString>& saved) { (*shared)(saved); });
    });
}

} // namespace

ShotOperations::ShotOperations(Means means)
    : m_means(std::move(means))
{
}

ShotActions ShotOperations::actions()
{
    ShotActions actions;
    actions.copy = [this](const FinishedCapture& capture) { return copy(capture); };
    actions.saveAs = [this](const FinishedCapture& capture, QWidget*) { return saveAs(capture); };
    actions.share = [this](const FinishedCapture& capture, QWidget* button) {
        return share(capture, *button);
    };
    actions.reveal = [this](const FinishedCapture& capture) { reveal(capture); };
    actions.file = [this](const FinishedCapture& capture) { return file(capture); };
    return actions;
}

ShotActions::Told ShotOperations::copy(const FinishedCapture& capture)
{
    auto [told, answer] = ShotActions::Told::ask();
    auto encode
        = [shot = capture.shot] { return Files::encode(shot.image, ImageType::Png, shot.scale); };
    const auto shared = std::make_shared<ShotActions::Told::Answer>(std::move(answer));
    runOnWorker(encode).then([this, shot = capture.shot, shared](const Result<QByteArray>& png) {
        Files::copy(*m_means.platform.clipboard, shot.image, shot.scale, png ? *png : QByteArray());
        (*shared)(Words::tr("Copied to clipboard"));
    });
    return std::move(told);
}

ShotActions::Told ShotOperations::saveAs(const FinishedCapture& capture)
{
    auto [told, answer] = ShotActions::Told::ask();
    const QString folder = m_means.prefs.saveFolder();
    Files::ensureFolder(folder);
    auto* dialog = new QFileDialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(Words::tr("Save As…"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({u"PNG (*.png)"_s, u"JPEG (*.jpg *.jpeg)"_s});
    dialog->setDefaultSuffix(u"png"_s);
    dialog->selectFile(
        Files::nextURL(folder, u"png"_s, u"Screenshot"_s, QDateTime::currentDateTime()));
    ask(*dialog, capture.shot, std::move(answer));
    dialog->open();
    return std::move(told);
}

ShotActions::Told ShotOperations::share(const FinishedCapture& capture, const QWidget& button)
{
    auto [told, answer] = ShotActions::Told::ask();
    const auto fileToShare = [this, capture]() -> Result<QString> {
        if (auto path = file(capture))
            return *std::move(path);
        return Error::failed(Words::tr("The picture could not be written to a file."));
    };
    auto& platform = m_means.platform;
    auto* menu = new ShareMenu(
        {m_means.themes, *platform.workspace, *platform.clipboard, platform.words}, fileToShare);
    QObject::connect(menu, &ShareMenu::shared, [this] { m_means.fun.record(FunDeed::Shared); });
    const auto shared = std::make_shared<ShotActions::Told::Answer>(std::move(answer));
    QObject::connect(menu, &ShareMenu::told, menu, [menu, shared](const QString& status) {
        menu->deleteLater();
        (*shared)(status.isEmpty() ? Result<QString>(Error::cancelled()) : status);
    });
    menu->openBelow(button);
    return std::move(told);
}

void ShotOperations::reveal(const FinishedCapture& capture)
{
    // That the file manager does not come is seen by itself.
    std::ignore
        = Files::reveal(*m_means.platform.workspace, capture.path, m_means.prefs.saveFolder());
}

std::optional<QString> ShotOperations::file(const FinishedCapture& capture) const
{
    if (QFileInfo::exists(capture.path))
        return capture.path;
    return Files::tempPNG(
        capture.shot.image, capture.shot.scale, m_means.folders, QDateTime::currentDateTime());
}
