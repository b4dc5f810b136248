#pragma once

#include "model/recoverability.h"

#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QString>

#include <array>

class QPainter;

/// The coloured label under a file's name that says how well the file can be recovered. Holds what
/// is slow to get: the translated captions and their widths.
class RecoverabilityLabel
{
public:
    /// To be called first, and again when language or font family have changed.
    void reload();
    /// Stands for the dot while the level is being assessed; may be null.
    void setAssessingIcon(const QPixmap &icon) { m_assessingIcon = icon; }

    /// The label at the foot of a card whose cell is \a cell.
    QRect rect(const QRect &cell, Recoverability level) const;
    void paint(QPainter *painter, const QRect &cell, Recoverability level, bool dark,
               Qt::LayoutDirection direction = Qt::LeftToRight) const;
    static QString tooltip(Recoverability level);

private:
    struct Caption
    {
        QString text;
        int width = 0;
    };
    static constexpr int LevelCount = 3;

    QFont m_font;
    int m_baseline = 0;
    std::array<Caption, LevelCount> m_captions;
    QPixmap m_assessingIcon;
};
