#include "host/ui/glyphs.h"

#include "host/tree/itemkinds.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr qreal GridSide = 20;
constexpr qreal LineWidth = 1.5;

void addLines(QPainterPath &path, std::initializer_list<QPointF> points, bool closed = false)
{
    auto point = points.begin();
    path.moveTo(*point);
    while (++point != points.end())
        path.lineTo(*point);
    if (closed)
        path.closeSubpath();
}

void addSheet(QPainterPath &path)
{
    addLines(path, {{11.5, 2.5}, {4.5, 2.5}, {4.5, 17.5}, {15.5, 17.5}, {15.5, 6.5}}, false);
    path.lineTo(11.5, 2.5);
    addLines(path, {{11.5, 2.5}, {11.5, 6.5}, {15.5, 6.5}});
}

QPainterPath outlineOf(Glyph glyph)
{
    QPainterPath path;
    switch (glyph) {
    case Glyph::OpenFolder:
        addLines(path, {{2.5, 15.5}, {2.5, 4.5}, {7.5, 4.5}, {9.5, 6.5}, {17.5, 6.5}, {17.5, 15.5}},
                 true);
        break;
    case Glyph::Disk:
        path.addRoundedRect(2.5, 4.5, 15, 11, 2, 2);
        addLines(path, {{2.5, 11.5}, {17.5, 11.5}});
        path.addEllipse(QPointF(14.5, 13.5), 0.5, 0.5);
        break;
    case Glyph::Search:
        path.addEllipse(QPointF(8.75, 8.75), 5.25, 5.25);
        addLines(path, {{12.75, 12.75}, {17, 17}});
        break;
    case Glyph::Sparkle:
        path.moveTo(9, 3.5);
        path.cubicTo(9.5, 8, 11, 9.5, 15.5, 10);
        path.cubicTo(11, 10.5, 9.5, 12, 9, 16.5);
        path.cubicTo(8.5, 12, 7, 10.5, 2.5, 10);
        path.cubicTo(7, 9.5, 8.5, 8, 9, 3.5);
        addLines(path, {{16, 2.5}, {16, 5.5}});
        addLines(path, {{14.5, 4}, {17.5, 4}});
        break;
    case Glyph::Close:
        addLines(path, {{5.5, 5.5}, {14.5, 14.5}});
        addLines(path, {{14.5, 5.5}, {5.5, 14.5}});
        break;
    case Glyph::Grid:
        for (qreal x : {3.5, 11.5}) {
            for (qreal y : {3.5, 11.5})
                path.addRoundedRect(x, y, 5, 5, 1, 1);
        }
        break;
    case Glyph::ListDetail:
        for (qreal y : {5.5, 10.0, 14.5})
            addLines(path, {{2.5, y}, {9.5, y}});
        path.addRoundedRect(12.5, 3.5, 5, 13, 1, 1);
        break;
    case Glyph::List:
        for (qreal y : {5.5, 10.0, 14.5}) {
            addLines(path, {{7, y}, {17.5, y}});
            addLines(path, {{2.75, y}, {3.75, y}});
        }
        break;
    case Glyph::Sun:
        path.addEllipse(QPointF(10, 10), 3.5, 3.5);
        for (int i = 0; i < 8; ++i) {
            const QLineF ray = QLineF::fromPolar(1, i * 45);
            addLines(path, {QPointF(10, 10) + ray.p2() * 6, QPointF(10, 10) + ray.p2() * 7.75});
        }
        break;
    case Glyph::Moon:
        path.moveTo(16.75, 11.75);
        path.cubicTo(11.5, 14.5, 5.5, 8.5, 8.25, 3.25);
        path.cubicTo(1.0, 5.5, 1.5, 16.5, 9.5, 17);
        path.cubicTo(13.0, 17.2, 15.75, 15, 16.75, 11.75);
        break;
    case Glyph::Up:
        addLines(path, {{10, 16}, {10, 4.5}});
        addLines(path, {{5, 9.5}, {10, 4.5}, {15, 9.5}});
        break;
    case Glyph::Left:
        addLines(path, {{12.5, 4.5}, {7, 10}, {12.5, 15.5}});
        break;
    case Glyph::Right:
        addLines(path, {{7.5, 4.5}, {13, 10}, {7.5, 15.5}});
        break;
    case Glyph::ChevronDown:
        addLines(path, {{6, 8}, {10, 12}, {14, 8}});
        break;
    case Glyph::ChevronRight:
        addLines(path, {{8, 6}, {12, 10}, {8, 14}});
        break;
    case Glyph::AllFiles:
        addLines(path, {{10, 3}, {17.5, 7}, {10, 11}, {2.5, 7}}, true);
        addLines(path, {{2.5, 10.25}, {10, 14.25}, {17.5, 10.25}});
        addLines(path, {{2.5, 13.25}, {10, 17.25}, {17.5, 13.25}});
        break;
    case Glyph::Photo:
        path.addRoundedRect(2.5, 3.5, 15, 13, 2, 2);
        path.addEllipse(QPointF(6.9, 7.9), 1.3, 1.3);
        addLines(path, {{3.5, 15.5}, {8.5, 10.75}, {11.25, 13.25}, {13.5, 11}, {17, 14.5}});
        break;
    case Glyph::Video:
        path.addRoundedRect(2.5, 4.5, 15, 11, 2, 2);
        addLines(path, {{8.5, 7.5}, {12.5, 10}, {8.5, 12.5}}, true);
        break;
    case Glyph::Audio:
        path.addEllipse(QPointF(5.75, 15), 2.25, 2);
        path.addEllipse(QPointF(14.25, 13.5), 2.25, 2);
        addLines(path, {{8, 15}, {8, 4.75}, {16.5, 3.25}, {16.5, 13.5}});
        break;
    case Glyph::Document:
        addSheet(path);
        addLines(path, {{7.5, 10}, {12.5, 10}});
        addLines(path, {{7.5, 13.5}, {12.5, 13.5}});
        break;
    case Glyph::Email:
        path.addRoundedRect(2.5, 4.5, 15, 11, 2, 2);
        addLines(path, {{3.25, 6}, {10, 11}, {16.75, 6}});
        break;
    case Glyph::Database:
        path.addEllipse(QRectF(3.5, 2.75, 13, 4.5));
        addLines(path, {{3.5, 5}, {3.5, 15}});
        path.cubicTo(3.5, 18, 16.5, 18, 16.5, 15);
        path.lineTo(16.5, 5);
        path.moveTo(3.5, 10);
        path.cubicTo(3.5, 13, 16.5, 13, 16.5, 10);
        break;
    case Glyph::Web:
        path.addEllipse(QPointF(10, 10), 7.5, 7.5);
        path.addEllipse(QPointF(10, 10), 3.25, 7.5);
        addLines(path, {{2.5, 10}, {17.5, 10}});
        break;
    case Glyph::Archive:
        path.addRoundedRect(2.5, 3.5, 15, 4, 1, 1);
        addLines(path, {{3.5, 7.5}, {3.5, 16.5}, {16.5, 16.5}, {16.5, 7.5}});
        addLines(path, {{8, 10.5}, {12, 10.5}});
        break;
    case Glyph::Other:
        addSheet(path);
        break;
    case Glyph::Deleted:
        addLines(path, {{3.5, 5.5}, {16.5, 5.5}});
        addLines(path, {{7.5, 5.5}, {7.5, 3}, {12.5, 3}, {12.5, 5.5}});
        addLines(path, {{5, 5.5}, {5.75, 17}, {14.25, 17}, {15, 5.5}});
        break;
    case Glyph::Recover:
        addLines(path, {{10, 2.5}, {10, 12}});
        addLines(path, {{5.75, 8}, {10, 12.25}, {14.25, 8}});
        addLines(path, {{3, 13}, {3, 16.5}, {17, 16.5}, {17, 13}});
        break;
    case Glyph::Stop:
        path.addRoundedRect(5.5, 5.5, 9, 9, 1, 1);
        break;
    case Glyph::CheckMany:
        path.addRoundedRect(2.5, 6.5, 11, 11, 2, 2);
        addLines(path, {{5.25, 12}, {7.25, 14}, {11, 9.75}});
        addLines(path, {{6.5, 2.75}, {15.5, 2.75}});
        path.cubicTo(16.5, 2.75, 17.25, 3.5, 17.25, 4.5);
        path.lineTo(17.25, 13.5);
        break;
    case Glyph::Warning:
        addLines(path, {{10, 3}, {18, 16.75}, {2, 16.75}}, true);
        addLines(path, {{10, 8}, {10, 12}});
        path.addEllipse(QPointF(10, 14.25), 0.3, 0.3);
        break;
    case Glyph::Done:
        path.addEllipse(QPointF(10, 10), 7.5, 7.5);
        addLines(path, {{6.5, 10.25}, {9, 12.75}, {13.75, 7.5}});
        break;
    }
    return path;
}

class GlyphEngine : public QIconEngine
{
public:
    GlyphEngine(Glyph glyph, const QColor &color, const QColor &off, const QColor &on)
        : m_glyph(glyph)
        , m_color(color)
        , m_off(off)
        , m_on(on)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        QColor color = state == QIcon::On && m_on.isValid() ? m_on : m_color;
        if (mode == QIcon::Disabled && m_off.isValid())
            color = m_off;
        const qreal side = qMin(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2,
                           rect.y() + (rect.height() - side) / 2);
        painter->scale(side / GridSide, side / GridSide);
        painter->setPen(QPen(color, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(outlineOf(m_glyph));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new GlyphEngine(*this); }

private:
    Glyph m_glyph;
    QColor m_color;
    QColor m_off;
    QColor m_on;
};

} // namespace

QIcon glyphIcon(Glyph glyph, const QColor &color, const QColor &off, const QColor &on)
{
    return QIcon(new GlyphEngine(glyph, color, off, on));
}

Glyph glyphOfKind(int rootType)
{
    switch (rootType) {
    case ItemKinds::AllFilesRootType:
        return Glyph::AllFiles;
    case 26:
        return Glyph::Photo;
    case 11:
        return Glyph::Video;
    case 10:
        return Glyph::Audio;
    case 24:
        return Glyph::Document;
    case 25:
        return Glyph::Email;
    case 23:
        return Glyph::Database;
    case 27:
        return Glyph::Web;
    case 9:
        return Glyph::Archive;
    default:
        return Glyph::Other;
    }
}
