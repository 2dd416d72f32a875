// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AnnotationKind.h"

/// What fills or frames the rectangle between a and b, whose corners can be pulled.
class Box : public AnnotationKind {
public:
    QList<QPointF> handles(const Annotation& it) const override;
    void setHandle(Annotation& it, qsizetype index, QPointF to) const override;
};
