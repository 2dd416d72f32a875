// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorFun.h"

#include "base/Worker.h"
#include "editor/EditorCanvas.h"
#include "editor/FaceCovers.h"
#include "editor/MemeDialog.h"
#include "editor/Memes.h"
#include "editor/StickerPickerView.h"
#include "widgets/Popover.h"

#include <QPointer>

#include <random>

EditorFun::EditorFun(const EditorMeans& means, EditorCanvas& canvas, QWidget& window)
    : QObject(&window)
    , m_means(means)
    , m_canvas(canvas)
    , m_window(window)
    , m_menu(new FunMenu(&window))
{
    connect(m_menu, &FunMenu::memeChosen, this, &EditorFun::askForMeme);
    connect(m_menu, &FunMenu::coverChosen, this, &EditorFun::coverFaces);
}

void EditorFun::showStickers(const QWidget& anchor)
{
    const auto close = std::make_shared<QPointer<Popover>>();
    const auto pickedBy = [this, close](auto pick) {
        return [this, close, pick](const QString& picked) {
            if (*close)
                (*close)->close();
            (this->*pick)(picked);
            m_canvas.setFocus();
        };
    };
    auto* picker = new StickerPickerView(m_means.surroundings.themes,
        pickedBy(&EditorFun::pickEmoji), pickedBy(&EditorFun::pickPhrase));
    *close = new Popover(m_means.surroundings, tr("Stickers"), picker, &m_window);
    (*close)->openAt(anchor);
}

void EditorFun::pickEmoji(const QString& emoji)
{
    m_canvas.edit([&](CanvasModel& model) {
        model.setSticker(emoji);
        model.setTool(Tool::Sticker);
    });
}

void EditorFun::pickPhrase(const QString& phrase)
{
    m_canvas.edit([&](CanvasModel& model) { model.addTextSticker(phrase); });
    m_means.fun.record(FunDeed::StickerDropped);
}

void EditorFun::askForMeme()
{
    auto* dialog = new MemeDialog(m_means.surroundings.themes, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &MemeDialog::captioned, this, &EditorFun::addMeme);
    dialog->open();
}

void EditorFun::addMeme(const QString& top, const QString& bottom)
{
    const auto lines = Memes::captions(top, bottom, m_canvas.model().document().base().size());
    m_canvas.edit([&](CanvasModel& model) { model.document().add(lines); });
    Q_EMIT told(tr("Meme caption added — double-click a line to edit it"));
    m_means.fun.record(FunDeed::MemeAdded);
}

void EditorFun::coverFaces(const QString& emoji)
{
    Q_EMIT told(tr("Looking for faces…"));
    auto look
        = [faces = m_means.faces, image = m_canvas.flattened()] { return faces->detect(image); };
    const QPointer self(this);
    runOnWorker(look).then([self, emoji](const Result<QList<QRectF>>& faces) {
        if (!self)
            return;
        if (faces)
            self->cover(*faces, emoji);
        else
            Q_EMIT self->told(tr("Face detection failed"));
    });
}

void EditorFun::cover(const QList<QRectF>& faces, const QString& emoji)
{
    std::mt19937 random {std::random_device()()};
    const auto covers = FaceCovers::on(faces, emoji, random);
    if (!covers.empty()) {
        m_canvas.edit([&](CanvasModel& model) { model.document().add(covers); });
        m_means.fun.record(FunDeed::FacesCovered, int(covers.size()));
    }
    Q_EMIT told(FaceCovers::told(faces.size()));
}
