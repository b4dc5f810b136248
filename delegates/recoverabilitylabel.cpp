#include "delegates/recoverabilitylabel.h"

#include "common/fontmanager.h"
#include "common/translation.h"
#include "delegates/painterstate.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int FontSize = 10;
constexpr int Height = 14;
constexpr qreal Radius = 7.0;
constexpr int BottomGap = 18; // from the label's top to the last line of the cell
constexpr int Padding = 25;   // beside the caption: dot, gap and both ends
constexpr int CardMargin = 8;
constexpr int DotSide = 6;
constexpr int CaptionOffset = 9; // dot and gap

struct LevelColors
{
    QColor darkBackground, lightBackground;
    QColor darkText, lightText;
    QColor darkDot, lightDot;
};

const LevelColors &colorsOf(Recoverability level)
{
    static const LevelColors high{{122, 195, 133, 46}, {241, 251, 242}, {0, 170, 100},
                                  {42, 159, 93, 179},  {102, 187, 138}, {102, 187, 138}};
    static const LevelColors medium{{255, 205, 81, 46}, {255, 248, 230}, {179, 122, 8},
                                    {255, 172, 46},     {255, 172, 46},  {255, 172, 46}};
    static const LevelColors assessing{{75, 142, 255, 46}, {237, 244, 254}, {65, 132, 248},
                                       {65, 132, 248},     {65, 132, 248},  {65, 132, 248}};
    switch (level) {
    case Recoverability::High:
        return high;
    case Recoverability::Medium:
        return medium;
    case Recoverability::Assessing:
        break;
    }
    return assessing;
}

} // namespace

void RecoverabilityLabel::reload()
{
    m_font = FontManager::instance()->getFont(false);
    m_font.setPixelSize(FontSize);
    const QFontMetrics metrics(m_font);
    m_baseline = (Height + metrics.ascent() - metrics.descent()) / 2;
    for (int level = 0; level < LevelCount; ++level) {
        Caption &caption = m_captions.at(level);
        caption.text = translatedKey(recoverabilityKey(Recoverability(level)));
        caption.width = metrics.horizontalAdvance(caption.text);
    }
}

QRect RecoverabilityLabel::rect(const QRect &cell, Recoverability level) const
{
    const int width = std::min(m_captions.at(int(level)).width + Padding,
                               cell.width() - CardMargin);
    return {cell.x() + (cell.width() - width) / 2, cell.bottom() - BottomGap, width, Height};
}

void RecoverabilityLabel::paint(QPainter *painter, const QRect &cell, Recoverability level,
                                bool dark, Qt::LayoutDirection direction) const
{
    const Caption &caption = m_captions.at(int(level));
    const LevelColors &colors = colorsOf(level);
    const QRect label = rect(cell, level);
    if (label.isEmpty())
        return;

    const PainterState state(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(dark ? colors.darkBackground : colors.lightBackground);
    painter->drawRoundedRect(label, Radius, Radius);

    const int content = caption.width + CaptionOffset;
    if (content > label.width()) {
        QPainterPath outline;
        outline.addRoundedRect(label, Radius, Radius);
        painter->setClipPath(outline, Qt::IntersectClip);
    }
    const QRect contentRect(label.left() + (label.width() - content) / 2, label.top(), content,
                            Height);
    const QRect dot = QStyle::visualRect(
        direction, contentRect,
        QRect(contentRect.left(), label.top() + (Height - DotSide) / 2, DotSide, DotSide));
    const QRect text = QStyle::visualRect(direction, contentRect,
                                          contentRect.adjusted(CaptionOffset, 0, 0, 0));

    if (level == Recoverability::Assessing && !m_assessingIcon.isNull()) {
        painter->drawPixmap(dot, m_assessingIcon);
    } else {
        painter->setBrush(dark ? colors.darkDot : colors.lightDot);
        painter->drawEllipse(dot);
    }
    painter->setFont(m_font);
    painter->setPen(dark ? colors.darkText : colors.lightText);
    painter->drawText(text.left(), label.top() + m_baseline, caption.text);
}

QString RecoverabilityLabel::tooltip(Recoverability level)
{
    const QString caption = translatedKey(recoverabilityKey(level));
    if (level == Recoverability::Assessing)
        return caption;
    return QStringLiteral("%1 \u00b7 %2").arg(translatedKey("recoverability_label"), caption);
}
