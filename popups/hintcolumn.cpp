#include "popups/hintcolumn.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QLayout>

#include <algorithm>

namespace {

constexpr int SideMargin = 24; // at least this much stays free at both sides

} // namespace

HintColumn::HintColumn(QFrame *page, QLabel *picture, const QVector<QLabel *> &texts)
    : QObject(page)
    , m_page(page)
    , m_picture(picture)
{
    for (QLabel *label : texts) {
        const bool fixed = label->minimumHeight() == label->maximumHeight();
        m_texts.append({label, label->minimumWidth(), fixed ? label->minimumHeight() : 0});
    }
    page->installEventFilter(this);
}

bool HintColumn::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QObject::eventFilter(watched, event);
    if (watched == m_page
        && (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest))
        fit();
    return handled;
}

void HintColumn::fit()
{
    const int width = std::min(Width, std::max(1, m_page->width() - 2 * SideMargin));
    for (const Text &text : qAsConst(m_texts)) {
        text.label->setMinimumWidth(std::min(text.leastWidth, width));
        text.label->setMaximumWidth(width);
        if (text.fixedHeight > 0)
            text.label->setFixedHeight(
                std::max(text.fixedHeight, text.label->heightForWidth(width)));
    }
    QLayout *layout = m_page->layout();
    const int left = (m_page->width() - width) / 2;
    layout->setContentsMargins(left, 0, m_page->width() - width - left, 0);

    layout->activate();
    // Changed only when it has to be: every change asks for another fit.
    const bool shown = !m_picture->isHidden();
    const int pictureHeight = shown ? 0 : m_picture->minimumHeight();
    const bool fits = !m_picture->pixmap(Qt::ReturnByValue).isNull()
        && layout->minimumHeightForWidth(m_page->width()) + pictureHeight <= m_page->height();
    if (fits != shown) {
        m_picture->setVisible(fits);
        layout->activate();
    }
}
