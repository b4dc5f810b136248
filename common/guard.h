#pragma once

#include <QDebug>

#include <utility>

/// Failures stop at the widget: runs \a work and logs \a signature when it throws. For operations
/// that the host calls or that run in a slot; use with Q_FUNC_INFO.
template <typename Work>
void guarded(const char *signature, Work &&work) noexcept
{
    try {
        std::forward<Work>(work)();
    } catch (...) {
        qDebug() << signature << "unknown exception";
    }
}
