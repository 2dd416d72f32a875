// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxScene.h"

#include "fun/Confetti.h"
#include "fun/Crumbling.h"
#include "fun/FlyAway.h"
#include "fun/Sparkles.h"

#include <algorithm>

namespace {

/// How far confetti may fly beyond what was captured: aside, and above and below together.
constexpr double confettiAside = 100;
constexpr double confettiAbove = 200;
constexpr double confettiBelow = 320;

constexpr double brightest = 0.55;

double fallingOff(double seconds, double duration)
{
    const double left = 1 - std::min(seconds / duration, 1.0);
    return left * left;
}

class Flash final : public FxScene {
public:
    Flash(QRectF area, double duration)
        : m_area(area)
        , m_duration(duration)
    {
    }

    FxSprites at(double seconds) const override
    {
        const QRgb colour = faded(0xffffffff, brightest * fallingOff(seconds, m_duration));
        if (qAlpha(colour) == 0)
            return {};
        return {{FxSprite::Shape::Ground, m_area.center(), m_area.size(), 0, colour}};
    }
    QRectF bounds() const override { return m_area; }

private:
    QRectF m_area;
    double m_duration;
};

} // namespace

std::unique_ptr<FxScene> FxScene::make(FxRules::Plan plan, const FxStage& stage)
{
    switch (plan.kind) {
    case FxKind::None:
    case FxKind::Outline:
        break;
    case FxKind::Flash:
        return std::make_unique<Flash>(stage.area, plan.duration);
    case FxKind::Confetti: {
        Confetti::Options options;
        options.stage
            = stage.area.adjusted(-confettiAside, -confettiAbove, confettiAside, confettiBelow);
        options.duration = plan.duration;
        options.seed = stage.seed;
        return std::make_unique<Confetti>(options, stage.theme);
    }
    case FxKind::Sparkles:
        return std::make_unique<Sparkles>(stage, plan.duration);
    case FxKind::Pixels:
        return std::make_unique<Crumbling>(stage, plan.duration);
    case FxKind::Fly:
        return std::make_unique<FlyAway>(stage, plan.duration);
    }
    return nullptr;
}
