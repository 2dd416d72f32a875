// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Annotation.h"

#include <memory>

/// An annotation that can be edited, and what snapshots keep of it: copies, of which those taken
/// while nothing changes are one.
class Mark final {
public:
    using Copy = std::shared_ptr<const Annotation>;

    explicit Mark(Annotation annotation)
        : m_annotation(std::move(annotation))
    {
    }
    explicit Mark(Copy copy)
        : m_annotation(copy->copy())
        , m_copy(std::move(copy))
    {
    }

    const Annotation& operator*() const { return m_annotation; }
    const Annotation* operator->() const { return &m_annotation; }

    /// To be changed at once, not kept.
    Annotation& change()
    {
        m_copy.reset();
        return m_annotation;
    }

    const Copy& copy() const
    {
        if (!m_copy)
            m_copy = std::make_shared<const Annotation>(m_annotation.copy());
        return m_copy;
    }

private:
    Annotation m_annotation;
    mutable Copy m_copy;
};
