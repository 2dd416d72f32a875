// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutSettings.h"

#include "base/Words.h"
#include "widgets/SymbolLabel.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

ShortcutSettings::ShortcutSettings(Means means)
    : m_means(std::move(means))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    auto* tile = new RowGroup(m_means.themes);
    for (const auto& info : captureKinds)
        m_lines << line(*tile, info);
    tile->setFooter(m_means.footer);
    column->addWidget(tile);
    connect(&m_means.recording.prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.delaySeconds.name))
            m_lines[int(CaptureKind::Delayed)].row->setLabel(title(infoOf(CaptureKind::Delayed)));
    });
    mark();
}

ShortcutSettings::Line ShortcutSettings::line(RowGroup& tile, const CaptureKindInfo& info)
{
    auto* recorder
        = new ShortcutRecorder(m_means.recording, *Prefs::keys.hotkey(QString(info.key)));
    connect(recorder, &ShortcutRecorder::recordingStarts, this,
        [this, recorder] { stopOthers(recorder); });
    auto* sign = new SymbolLabel(
        m_means.themes, u"exclamationmark.triangle.fill"_s, SymbolLabel::Role::Failure);
    auto* both = new QWidget;
    auto* layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->setSpacing(Space::related);
    layout->addWidget(sign);
    layout->addWidget(recorder);
    both->setFocusProxy(recorder);
    auto* row = tile.addRow({title(info), {}, info.symbol}, both);
    return {info.kind, row, sign, recorder};
}

QString ShortcutSettings::title(const CaptureKindInfo& info) const
{
    const QString title = Words::tr(info.title);
    return title.contains(u"%1"_s)
        ? title.arg(m_means.recording.prefs.get(Prefs::keys.delaySeconds))
        : title;
}

void ShortcutSettings::mark()
{
    for (const Line& line : m_lines) {
        const QString problem = this->problem(line.kind);
        line.mark->setVisible(!problem.isEmpty());
        line.row->setExplanation(problem);
    }
}

QString ShortcutSettings::problem(CaptureKind kind) const
{
    if (!m_means.isRefused(kind))
        return {};
    const auto comboOf = [this](CaptureKind of) {
        return KeyCombo::fromText(
            m_means.recording.prefs.get(*Prefs::keys.hotkey(QString(infoOf(of).key))));
    };
    const auto combo = comboOf(kind);
    for (const auto& earlier : captureKinds) {
        if (earlier.kind == kind)
            break;
        const auto other = comboOf(earlier.kind);
        if (combo && other && other->chord() == combo->chord())
            return tr("“%1” has the same keys.").arg(title(earlier));
    }
    return tr("Your desktop or another program has these keys.");
}

void ShortcutSettings::stopOthers(const ShortcutRecorder* starting)
{
    for (const Line& line : m_lines)
        if (line.recorder != starting)
            line.recorder->stop();
}
