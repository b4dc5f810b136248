#include "content/bandframe.h"

#include <QPainter>

void paintBand(QPainter *painter, const QRect &band, const QColor &veil, const QColor &edge)
{
    if (band.width() < 1 || band.height() < 1)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->fillRect(band, veil);
    painter->setPen(edge);
    painter->drawRect(band.adjusted(0, 0, -1, -1));
    painter->restore();
}

BandFrame::BandFrame(QWidget *parent)
    : QRubberBand(Rectangle, parent)
{
}

void BandFrame::setColors(const QColor &veil, const QColor &edge)
{
    m_veil = veil;
    m_edge = edge;
}

void BandFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBand(&painter, rect(), m_veil, m_edge);
}
