#include "common/highdpipixmapsbutton.h"

#include "common/commonfunction.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOptionFocusRect>

HighDpiPixmapsButton::HighDpiPixmapsButton(const QString &folder, const Images &images,
                                           QWidget *parent)
    : QPushButton(parent)
    , m_folder(folder)
    , m_images(images)
    , m_currentImage(images.normal)
    , m_scale(int(CommonFunction::getScaleFactor()))
{
    connect(this, &QPushButton::clicked, this, &HighDpiPixmapsButton::latch);
}

void HighDpiPixmapsButton::setEnabledState(bool enabled)
{
    m_enabledState = enabled;
    setEnabled(enabled);
    showImage(enabled ? m_images.normal : m_images.disabled);
}

void HighDpiPixmapsButton::resetState()
{
    m_latched = false;
    setCursor(Qt::ArrowCursor);
    showImage(m_images.normal);
}

void HighDpiPixmapsButton::showHoverState()
{
    m_latched = false;
    showImage(m_images.hover);
}

void HighDpiPixmapsButton::enterEvent(QEvent *)
{
    if (!m_enabledState) {
        showImage(m_images.disabled);
    } else if (!m_latched) {
        setCursor(Qt::PointingHandCursor);
        showImage(m_images.hover);
        emit buttonHovered(true);
    }
}

void HighDpiPixmapsButton::leaveEvent(QEvent *)
{
    if (!m_enabledState) {
        showImage(m_images.disabled);
    } else if (!m_latched) {
        setCursor(Qt::ArrowCursor);
        showImage(m_images.normal);
        emit buttonHovered(false);
    }
}

void HighDpiPixmapsButton::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (reactsToPress())
        showImage(m_images.press);
}

void HighDpiPixmapsButton::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (reactsToPress() && event->button() == Qt::LeftButton)
        click();
}

void HighDpiPixmapsButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPixmap picture = loadCurrent();
    if (!picture.isNull()) {
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
        painter.drawPixmap(rect(), picture, picture.rect());
    }
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void HighDpiPixmapsButton::showImage(const QString &name)
{
    m_currentImage = name;
    update();
}

void HighDpiPixmapsButton::latch()
{
    if (!reactsToPress())
        return;
    m_latched = true;
    showImage(m_images.press);
    emit buttonClicked(); // may delete the button
}

QPixmap HighDpiPixmapsButton::loadCurrent()
{
    const QString format = m_scale >= 2 ? QStringLiteral("%1/%2@2x.png")
                                        : QStringLiteral("%1/%2.png");
    const QString path = format.arg(m_folder, m_currentImage);
    const QPixmap picture(path);
    if (picture.isNull() && path != m_missing) {
        m_missing = path;
        qDebug() << "HighDpiPixmapsButton: no picture" << path;
    }
    return picture;
}
