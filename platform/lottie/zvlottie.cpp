#include "zvlottie.h"

namespace Tarn {

ZVLottie::ZVLottie(const QString &source, QWidget *parent)
    : QWidget(parent)
{
    if (!source.isEmpty())
        setSource(source);
}
ZVLottie::~ZVLottie() = default;
bool ZVLottie::setSource(const QString &)
{
    return false;
}
void ZVLottie::setisLoop(bool)
{
}
void ZVLottie::setAnimationSize(const QSize &)
{
}
void ZVLottie::setTimeInterval(double)
{
}
void ZVLottie::setPlay(bool)
{
}
void ZVLottie::setPaused(bool)
{
}
bool ZVLottie::isPlaying() const
{
    return false;
}
void ZVLottie::paintEvent(QPaintEvent *)
{
}
void ZVLottie::resizeEvent(QResizeEvent *)
{
}

} // namespace Tarn
