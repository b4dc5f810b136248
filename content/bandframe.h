#pragma once

#include <QColor>
#include <QRubberBand>

class QPainter;

/// Draws a rubber band as a veil with an edge: what it covers stays readable in every style.
void paintBand(QPainter *painter, const QRect &band, const QColor &veil, const QColor &edge);

/// A rubber band as a widget of its own, over a view that does not paint one.
class BandFrame : public QRubberBand
{
    Q_OBJECT

public:
    explicit BandFrame(QWidget *parent);

    void setColors(const QColor &veil, const QColor &edge);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_veil;
    QColor m_edge;
};
