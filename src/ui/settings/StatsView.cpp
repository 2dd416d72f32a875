// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/StatsView.h"

#include <QHBoxLayout>
#include <QLocale>

using namespace Qt::StringLiterals;

StatsView::StatsView(const Themes& themes, const Fun& fun)
    : m_themes(themes)
    , m_fun(fun)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    m_total = add(u"Captures"_s);
    m_today = add(u"Today"_s);
    m_streak = add(u"Days in a row"_s);
    m_best = add(u"Best streak"_s);
    m_level = add(u"Level"_s);
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
