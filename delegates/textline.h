#pragma once

#include <QTextLayout>

#include <memory>

/// A line of \a text that keeps its glyphs, so that drawing it again does not shape it again.
std::unique_ptr<QTextLayout> laidOutLine(const QString &text, const QFont &font,
                                         Qt::LayoutDirection direction,
                                         const QVector<QTextLayout::FormatRange> &formats = {});
