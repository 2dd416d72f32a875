// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/StatsView.h"

#include <QHBoxLayout>
#include <QLocale>

StatsView::StatsView(const Themes& themes, const Fun& fun)
    : m_themes(themes)
    , m_fun(fun)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    m_total = add(tr("Captures"));
    m_today = add(tr("Today"));
    m_streak = add(tr("Days in a row"));
    m_best = add(tr("Best streak"));
    m_level = add(tr("Level"));
    connect(&m_fun, &Fun::statsChanged, this, &StatsView::show);
    show();
}

TextLabel* StatsView::add(const QString& caption)
{
    auto* number = new TextLabel(m_themes, TextStyle::Title1);
    auto* label = new TextLabel(
        m_themes, TextStyle::Caption, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped);
    label->setText(caption);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    for (TextLabel* each : {number, label}) {
        each->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        column->addWidget(each);
    }
    static_cast<QHBoxLayout*>(layout())->addLayout(column, 1);
    return number;
}

void StatsView::show()
{
    const QLocale locale;
    m_total->setText(locale.toString(m_fun.stats().total));
    m_today->setText(locale.toString(m_fun.today()));
    m_streak->setText(locale.toString(m_fun.streak()));
    m_best->setText(locale.toString(m_fun.stats().bestStreak));
    m_level->setText(locale.toString(m_fun.level()));
}
