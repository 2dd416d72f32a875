// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/DiagnosisView.h"

#include "doctor/DoctorReport.h"
#include "ui/settings/SettingsPages.h"
#include "widgets/SymbolLabel.h"

#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// At the end of a line, told to screen readers in words.
SymbolLabel* mark(const Themes& themes, bool isOk)
{
    return isOk
        ? new SymbolLabel(themes, u"checkmark.circle"_s)
        : new SymbolLabel(themes, u"exclamationmark.triangle.fill"_s, SymbolLabel::Role::Failure);
}

} // namespace

DiagnosisView::DiagnosisView(Means means)
    : m_means(std::move(means))
    , m_groups(new QVBoxLayout)
    , m_run(SettingsPages::button(tr("Run"), [this] { examine(); }))
    , m_copy(SettingsPages::button(tr("Copy Report"), [this] { copy(); }))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Space::group);
    m_groups->setSpacing(Space::group);
    auto* tile = new RowGroup(m_means.themes);
    m_summary
        = tile->addRow({{}, tr("Takes some seconds and shows a small pattern on each screen.")},
            SettingsPages::beside({m_run, m_copy}));
    say(tr("Does everything work here?"));
    m_copy->setEnabled(false);
    column->addWidget(tile);
    column->addLayout(m_groups);
}

void DiagnosisView::examine()
{
    if (std::exchange(m_isExamining, true)) // Disabled, the button would lose the keyboard.
        return;
    say(tr("Examining…"));
    m_means.examine().then([self = QPointer(this)](const Result<QList<DoctorCheck>>& found) {
        if (self)
            self->show(found);
    });
}

void DiagnosisView::show(const Result<QList<DoctorCheck>>& found)
{
    while (const auto* group = m_groups->takeAt(0)) {
        delete group->widget();
        delete group;
    }
    m_checks = found ? *found : QList<DoctorCheck>();
    addGroup(tr("Needs attention"), false);
    addGroup(tr("Works"), true);
    m_run->setText(tr("Run Again"));
    m_isExamining = false;
    m_copy->setEnabled(bool(found));
    say(found ? DoctorReport::conclusion(m_checks) : found.error().message);
}

/// The button goes on being called what it does.
void DiagnosisView::say(const QString& summary)
{
    m_summary->setLabel(summary);
    m_run->setAccessibleName(m_run->text());
    m_run->setAccessibleDescription(summary);
}

void DiagnosisView::addGroup(const QString& heading, bool isOk)
{
    RowGroup* group = nullptr;
    for (const auto& check : std::as_const(m_checks)) {
        if (check.isOk() != isOk)
            continue;
        if (!group)
            m_groups->addWidget(group = new RowGroup(m_means.themes, heading));
        const QString words = isOk ? check.detail : check.detail + u'\n' + check.advice;
        auto* sign = mark(m_means.themes, isOk);
        group->addRow({check.title, words}, sign);
        sign->setAccessibleName(u"%1: %2"_s.arg(check.title, heading));
    }
}

void DiagnosisView::copy() const
{
    m_means.clipboard.setText(DoctorReport::toText(m_checks));
}
