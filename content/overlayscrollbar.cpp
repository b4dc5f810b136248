#include "content/overlayscrollbar.h"

#include "model/spokentext.h"

#include <QAbstractItemView>
#include <QEvent>

namespace {

constexpr int Width = 8;

} // namespace

OverlayScrollBar::OverlayScrollBar(QAbstractItemView *view, QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
    , m_view(view)
{
    setObjectName(QStringLiteral("listViewOverlayScrollBar"));
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(SpokenText::scrollBar());
    hide();

    QScrollBar *own = view->verticalScrollBar();
    connect(own, &QScrollBar::rangeChanged, this, &OverlayScrollBar::sync);
    connect(own, &QScrollBar::valueChanged, this, &QScrollBar::setValue);
    connect(this, &QScrollBar::valueChanged, own, &QScrollBar::setValue);
}

void OverlayScrollBar::sync()
{
    const QScrollBar *own = m_view->verticalScrollBar();
    if (!m_view->isVisible() || own->maximum() <= own->minimum()) {
        hide();
        return;
    }
    {
        // The view's position is the truth: a range that is smaller for a moment must not clamp it.
        const QSignalBlocker blocker(this);
        setRange(own->minimum(), own->maximum());
        setPageStep(own->pageStep());
        setSingleStep(own->singleStep());
        setValue(own->value());
    }
    const QPoint corner = m_view->mapTo(parentWidget(), QPoint(0, 0));
    const int x = layoutDirection() == Qt::RightToLeft ? corner.x() + RoomInView - Width
                                                       : corner.x() + m_view->width() - RoomInView;
    setGeometry(x, corner.y(), Width, m_view->height());
    show();
    raise();
}

void OverlayScrollBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(SpokenText::scrollBar());
    else if (event->type() == QEvent::LayoutDirectionChange && isVisible())
        sync();
    QScrollBar::changeEvent(event);
}
