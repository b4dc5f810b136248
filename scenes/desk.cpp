#include "scenes/scenes.h"
#include "scenes/table.h"

#include <algorithm>

using namespace Table;

void Scenes::document(Canvas &canvas, int)
{
    wood(canvas, {92, 62, 42}, {190, 140, 96});
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        painter.translate(canvas.width() * 0.5, 500);
        painter.rotate(-6);
        const double half = std::min(canvas.width() * 0.4, 330.0);
        for (int i = 0; i < 9; ++i)
            painter.fillRect(QRectF(-half + 4 + i * 2, -430 + 4 + i * 2, half * 2, 880),
                             QColor(20, 10, 10, 14));
        QLinearGradient paper(-half, -430, half, 450);
        paper.setColorAt(0, {255, 254, 248});
        paper.setColorAt(1, {222, 216, 206});
        painter.fillRect(QRectF(-half, -430, half * 2, 880), paper);
        painter.fillRect(QRectF(-half + 50, -370, 84, 84), QColor(52, 110, 180));
        painter.fillRect(QRectF(-half + 160, -362, half * 0.9, 22), QColor(46, 50, 62));
        painter.fillRect(QRectF(-half + 160, -326, half * 0.6, 13), QColor(120, 126, 140));
        for (int line = 0; line < 19; ++line) {
            double x = -half + 50;
            const double y = -232 + line * 31 + (line > 6 ? 22 : 0) + (line > 12 ? 22 : 0);
            const double end = line % 7 == 6 ? 0 : half - 60;
            while (x < end) {
                const double word = random.between(16, 66);
                painter.fillRect(QRectF(x, y, std::min(word, end - x), 9), QColor(70, 74, 88, 200));
                x += word + 10;
            }
        }
        painter.setPen(QPen(QColor(30, 50, 130), 4, Qt::SolidLine, Qt::RoundCap));
        QPainterPath ink(QPointF(half - 250, 396));
        for (int i = 0; i < 7; ++i)
            ink.cubicTo(QPointF(half - 240 + i * 26, 340), QPointF(half - 226 + i * 26, 430),
                        QPointF(half - 222 + i * 26, 388 + 6 * (i % 2)));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(ink);
    });
    canvas.draw([&](QPainter &painter) {
        painter.translate(canvas.width() * 0.86, 640);
        painter.rotate(-62);
        painter.fillRect(QRectF(-230, 8, 440, 22), QColor(20, 10, 10, 70));
        QLinearGradient barrel(0, -14, 0, 14);
        barrel.setColorAt(0, {90, 120, 170});
        barrel.setColorAt(1, {16, 26, 54});
        painter.fillRect(QRectF(-240, -13, 400, 26), barrel);
        painter.setBrush(QColor(216, 180, 90));
        painter.drawPolygon(QPolygonF({{160, -12}, {214, -2}, {214, 2}, {160, 12}}));
        painter.fillRect(QRectF(-10, -14, 14, 28), QColor(216, 180, 90));
    });
    canvas.glow({60, 40}, 1000, {255, 246, 224}, 0.35);
}
