// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorWindow.h"

#include "capture/Files.h"
#include "editor/EditorCanvas.h"
#include "editor/EditorFun.h"
#include "editor/EditorLayout.h"
#include "editor/EditorNotice.h"
#include "editor/EditorToolbar.h"
#include "widgets/Accessible.h"
#include "widgets/PanelPlacement.h"
#include "widgets/TextLabel.h"

#include <QCloseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Command = EditorCommands::Command;

constexpr double zoomStep = 1.25;

TextLabel* newLabel(const Themes& themes, const QString& name)
{
    auto* label = new TextLabel(themes, TextStyle::Callout, TextLabel::Role::Secondary);
    label->setAccessibleDescription(name);
    return label;
}

} // namespace

EditorWindow::EditorWindow(
    const EditorMeans& means, const FinishedCapture& capture, ResumedEdit resumed)
    : m_means(means)
    , m_scale(capture.shot.scale)
    , m_app(capture.shot.app)
    , m_path(capture.path)
    , m_historyId(capture.historyId)
    , m_journal(resumed.journal ? std::move(resumed.journal) : means.edits.journal(capture))
    , m_isReopened(resumed.adopted == CanvasDocument::Adopted::Unsaved)
    , m_commands(means.surroundings.themes, *this)
    , m_canvas(new EditorCanvas(capture.shot.image))
    , m_fun(new EditorFun(m_means, *m_canvas, *this))
    , m_toolbar(new EditorToolbar(m_means.surroundings, m_commands, m_fun->menu()))
    , m_notice(new EditorNotice(means.surroundings.themes))
    , m_subtitle(newLabel(means.surroundings.themes, tr("Status")))
    , m_magnification(newLabel(means.surroundings.themes, tr("Magnification")))
{
    m_canvas->edit(
        [&](CanvasModel& model) { model.document().adopt(resumed.annotations, resumed.adopted); });
    arrange();
    connectCommands();
    connectCanvas();
    connectToolbar();
    connect(m_fun, &EditorFun::told, this, &EditorWindow::setStatus);
    connect(&m_fun->menu(), &FunMenu::stickersChosen, this, &EditorWindow::showStickers);
    connect(&m_means.surroundings.themes, &Themes::changed, this, &EditorWindow::adoptTheme);
    adoptTheme();
    m_toolbar->setTool(m_canvas->model().tool());
    m_toolbar->setSettings(m_canvas->model().settings());
    refresh();
    showMagnification();
}

EditorWindow::~EditorWindow() = default;

void EditorWindow::arrange()
{
    auto* status = new QHBoxLayout;
    status->setContentsMargins(Space::inner, Space::tiny, Space::inner, Space::tiny);
    status->addWidget(m_subtitle, 1);
    status->addWidget(m_magnification);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_toolbar);
    column->addWidget(m_notice);
    column->addWidget(m_canvas, 1);
    column->addLayout(status);
    m_canvas->setAccessibleName(tr("Picture"));
    setFocusProxy(m_canvas);
}

void EditorWindow::connectCommands()
{
    const auto on = [this](Command command, auto action) {
        connect(&m_commands[command], &QAction::triggered, this, action);
    };
    on(Command::Undo,
        [this] { m_canvas->edit([](CanvasModel& model) { model.document().undo(); }); });
    on(Command::Redo,
        [this] { m_canvas->edit([](CanvasModel& model) { model.document().redo(); }); });
    on(Command::ZoomOut, [this] { zoom(1 / zoomStep); });
    on(Command::Fit, &EditorWindow::fit);
    on(Command::ZoomIn, [this] { zoom(zoomStep); });
    on(Command::Pin, &EditorWindow::pin);
    on(Command::Save, &EditorWindow::saveAs);
    on(Command::Copy, &EditorWindow::copy);
    on(Command::Share, &EditorWindow::share);
    on(Command::Sticker, &EditorWindow::showStickers);
    on(Command::Close, &QWidget::close);
    m_commands[Command::Pin].setEnabled(bool(m_means.actions.pin));
    m_commands[Command::Save].setEnabled(bool(m_means.actions.saveAs));
    m_commands[Command::Share].setEnabled(bool(m_means.actions.share));
    connect(m_notice, &EditorNotice::retryChosen, this, &QWidget::close);
    connect(m_notice, &EditorNotice::saveElsewhereChosen, this, &EditorWindow::saveAs);
    connect(m_notice, &EditorNotice::discardChosen, this, &EditorWindow::discardEdit);
}

void EditorWindow::connectCanvas()
{
    connect(m_canvas, &EditorCanvas::changed, this, &EditorWindow::refresh);
    connect(m_canvas, &EditorCanvas::changed, this,
        [this] { m_journal->note(m_canvas->model().document()); });
    connect(m_canvas, &EditorCanvas::closeRequested, this, &QWidget::close);
    connect(m_canvas, &EditorCanvas::toolChanged, m_toolbar, &EditorToolbar::setTool);
    connect(m_canvas, &EditorCanvas::stickerPlaced, this,
        [this] { m_means.fun.record(FunDeed::StickerDropped); });
    connect(m_canvas, &EditorCanvas::magnified, this, [this] {
        m_isFitted = false;
        showMagnification();
    });
}

/// Changes the model as the toolbar says; the keyboard is the canvas's again.
template <typename Change>
void EditorWindow::choose(Change change)
{
    m_canvas->edit(change);
    m_canvas->setFocus();
}

void EditorWindow::connectToolbar()
{
    connect(m_toolbar, &EditorToolbar::toolChosen, this,
        [this](Tool tool) { choose([tool](CanvasModel& model) { model.setTool(tool); }); });
    connect(m_toolbar, &EditorToolbar::colorChosen, this, [this](const QColor& color) {
        choose([color](CanvasModel& model) { model.setColor(color); });
    });
    connect(m_toolbar, &EditorToolbar::strokeChosen, this, [this](double pixels) {
        choose([pixels](CanvasModel& model) { model.setStrokeWidth(pixels); });
    });
    connect(m_toolbar, &EditorToolbar::textStyleChosen, this, [this](const QString& name) {
        choose([&name](CanvasModel& model) { model.setTextStyle(name); });
    });
}

void EditorWindow::adoptTheme()
{
    const Theme& theme = m_means.surroundings.themes.current();
    setPalette(theme.palette());
    QPalette palette = theme.palette();
    palette.setColor(QPalette::Base, theme.well);
    palette.setColor(QPalette::Mid, theme.hairline);
    palette.setColor(QPalette::Shadow, theme.shadow);
    m_canvas->setPalette(palette);
}

void EditorWindow::open()
{
    const auto screen = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
    const QSize size = EditorLayout::contentSize(
        m_canvas->model().document().base().size(), m_scale, screen.workArea.size());
    QRect frame({}, size);
    frame.moveCenter(screen.workArea.center());
    setGeometry(frame);
    show();
    raise();
    activateWindow();
    m_canvas->setFocus();
    fit();
}

void EditorWindow::showStickers()
{
    m_fun->showStickers(m_toolbar->anchor(Command::Sticker));
}

bool EditorWindow::isEdited() const
{
    return hasEdits() || m_canvas->model().textPrompt();
}

bool EditorWindow::hasEdits() const
{
    const CanvasDocument& document = m_canvas->model().document();
    return document.isDirty() && (document.canUndo() || m_isReopened);
}

void EditorWindow::refresh()
{
    const CanvasDocument& document = m_canvas->model().document();
    m_commands[Command::Undo].setEnabled(document.canUndo());
    m_commands[Command::Redo].setEnabled(document.canRedo());
    showStatus(EditorLayout::subtitle(document.base().size(), hasEdits()));
    m_isCopied = m_isSavedElsewhere = false;
}

/// What came of a command.
void EditorWindow::setStatus(const QString& status)
{
    showStatus(status);
    Accessible::announce(*m_subtitle);
}

void EditorWindow::showStatus(const QString& status)
{
    m_subtitle->setText(status);
    setWindowTitle(status + u" — Pixmallow"_s);
}

void EditorWindow::showMagnification()
{
    const double ofOwnSize = m_canvas->view().magnification() * m_scale;
    m_magnification->setText(u"%1 %"_s.arg(int(std::lround(ofOwnSize * 100))));
}

void EditorWindow::fit()
{
    const CanvasDocument& document = m_canvas->model().document();
    m_canvas->magnify(EditorLayout::fittingMagnification(
        document.base().size(), m_canvas->viewport()->size(), m_scale));
    m_isFitted = true;
}

void EditorWindow::zoom(double factor)
{
    m_canvas->magnify(m_canvas->view().magnification() * factor);
}

void EditorWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_isFitted)
        fit();
}

Shot EditorWindow::flattened()
{
    return {m_canvas->flattened(), m_scale, m_app, {}};
}

/// The picture as it leaves the editor.
Shot EditorWindow::exported()
{
    const Shot shot = flattened();
    m_journal->exported(m_canvas->model().document(), shot.image);
    return shot;
}

void EditorWindow::pin()
{
    m_means.actions.pin({exported()});
}

void EditorWindow::copy()
{
    const Shot shot = exported();
    const auto png = Files::encode(shot.image, ImageType::Png, m_scale);
    Files::copy(m_means.clipboard, shot.image, m_scale, png ? *png : QByteArray());
    m_isCopied = true;
    setStatus(tr("Copied to clipboard"));
}

void EditorWindow::saveAs()
{
    const QPointer window(this);
    const std::size_t steps = m_canvas->model().document().undoSteps();
    m_means.actions.saveAs({exported()}, this).then([window, steps](const Result<QString>& told) {
        if (!window || (!told && told.error().isCancelled()))
            return;
        window->setStatus(told ? *told : told.error().message);
        const bool isCurrent = window->m_canvas->model().document().undoSteps() == steps;
        if (!told || !window->m_isFailed || !isCurrent)
            return;
        window->m_isSavedElsewhere = true;
        window->m_notice->hide();
    });
}

void EditorWindow::share()
{
    // Only an unedited picture is the one in its file.
    const FinishedCapture capture {exported(), isEdited() ? QString() : m_path};
    const QPointer window(this);
    m_means.actions.share(capture, &m_toolbar->anchor(Command::Share))
        .then([window](const Result<QString>& told) {
            if (window && (told || !told.error().isCancelled()))
                window->setStatus(told ? *told : told.error().message);
        });
}

ClosingRules::Situation EditorWindow::situation() const
{
    const auto& items = m_means.history.items();
    const bool isInHistory = std::ranges::find(items, m_historyId, &HistoryItem::id) != items.end();
    return {isEdited(), m_path, isInHistory, m_means.prefs.get(Prefs::keys.historyEnabled),
        m_means.prefs.get(Prefs::keys.copyToClipboard), m_isCopied, m_isSavedElsewhere};
}

Result<void> EditorWindow::keepEdit()
{
    if (!isEdited())
        return {};
    const Shot shot = flattened(); // What is being typed becomes an edit here.
    return carryOut(ClosingRules::plan(situation()), shot);
}

Result<void> EditorWindow::rescueEdit()
{
    const auto kept = keepEdit();
    if (kept)
        return {};
    return carryOut({.write = ClosingRules::Plan::Write::NewFile}, flattened());
}

Result<void> EditorWindow::carryOut(const ClosingRules::Plan& plan, const Shot& shot)
{
    const auto kept = EditKeeper::keep(m_means, {shot, m_path, m_historyId}, plan);
    m_isFailed = !kept;
    if (!kept)
        return kept.error();
    m_journal->moveTo(kept->path, kept->historyId);
    m_journal->exported(m_canvas->model().document(), shot.image, kept->path);
    m_canvas->edit([](CanvasModel& model) { model.document().setClean(); });
    m_isCopied = false;
    return {};
}

void EditorWindow::discardEdit()
{
    m_canvas->edit([](CanvasModel& model) { model.document().setClean(); });
    close();
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    if (const auto kept = keepEdit(); !kept) {
        event->ignore();
        m_notice->tell(kept.error().message);
        layout()->activate();
        if (m_isFitted)
            fit();
        return;
    }
    m_journal->close();
    event->accept();
    Q_EMIT closed();
}
