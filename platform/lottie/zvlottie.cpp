#include "zvlottie.h"

#include "lottieanimation.h"
#include "lottieframes.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPainter>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>

namespace Tarn {

struct ZVLottie::Private
{
    explicit Private(ZVLottie *widget)
        : q(widget)
    {
    }

    void run(); // starts or stops the timer, whichever the state asks for
    void showFrame();
    void advance();
    double position() const;
    QRect target() const;
    QSize drawnSize() const;
    QSize pixels() const;
    bool isAtEnd() const;
    int intervalMs() const;

    ZVLottie *q;
    LottieFrames frames;
    QBasicTimer timer;
    QElapsedTimer clock; // since playedMs was last brought up to date
    double playedMs = 0;
    double wantedIntervalMs = 0;
    QSize animationSize;
    int frame = -1;
    bool playing = false;
    bool loop = false;
    bool onScreen = false; // minimised windows hide their children without making them invisible
};

double ZVLottie::Private::position() const
{
    return timer.isActive() ? playedMs + double(clock.nsecsElapsed()) / 1e6 : playedMs;
}

QSize ZVLottie::Private::drawnSize() const
{
    return animationSize.isEmpty() ? q->size() : animationSize;
}

QSize ZVLottie::Private::pixels() const
{
    return LottieFrames::bounded(drawnSize() * q->devicePixelRatioF());
}

bool ZVLottie::Private::isAtEnd() const
{
    return frames.animation() && !loop && position() >= frames.animation()->durationMs();
}

QRect ZVLottie::Private::target() const
{
    QRect rect(QPoint(), drawnSize());
    rect.moveCenter(q->rect().center());
    return rect;
}

int ZVLottie::Private::intervalMs() const
{
    constexpr double LongestMs = 60 * 1000;
    const double own = 1000.0 / frames.animation()->framesPerSecond();
    const double interval = wantedIntervalMs < 1 ? own : wantedIntervalMs;
    return int(std::clamp(interval, 1.0, LongestMs));
}

void ZVLottie::Private::run()
{
    playedMs = position();
    timer.stop();
    if (!frames.animation() || !onScreen)
        return;
    if (playing) {
        timer.start(intervalMs(), Qt::PreciseTimer, q);
        clock.start();
    }
    showFrame();
}

void ZVLottie::Private::showFrame()
{
    const double duration = frames.animation()->durationMs();
    const double now = loop ? std::fmod(position(), duration) : position();
    const int last = frames.animation()->frameCount() - 1;
    const int due = std::min(int(now * frames.animation()->framesPerSecond() / 1000.0), last);
    if (due == frame && pixels() == frames.pixelSize())
        return;
    frame = due;
    frames.setPixelSize(pixels());
    frames.show(due);
}

void ZVLottie::Private::advance()
{
    if (isAtEnd()) {
        playing = false;
        timer.stop();
        playedMs = frames.animation()->durationMs();
    }
    showFrame();
}

ZVLottie::ZVLottie(const QString &source, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    connect(&d->frames, &LottieFrames::ready, this, [this] { update(d->target()); });
    if (!source.isEmpty())
        setSource(source);
}

ZVLottie::~ZVLottie() = default;

bool ZVLottie::setSource(const QString &path)
{
    d->timer.stop();
    d->frames.setAnimation(LottieAnimation::load(path));
    d->playedMs = 0;
    d->frame = -1;
    d->run();
    updateGeometry();
    update();
    return d->frames.animation() != nullptr;
}

void ZVLottie::setisLoop(bool loop)
{
    if (const LottieAnimation *animation = d->frames.animation()) {
        // what counts from here on is the place in this round
        d->playedMs = d->loop ? std::fmod(d->position(), animation->durationMs()) : d->position();
        d->clock.start();
    }
    d->loop = loop;
    d->run();
}

void ZVLottie::setAnimationSize(const QSize &size)
{
    d->animationSize = size;
    d->run();
    updateGeometry();
    update();
}

void ZVLottie::setTimeInterval(double milliseconds)
{
    d->wantedIntervalMs = std::isfinite(milliseconds) ? milliseconds : 0;
    d->run();
}

void ZVLottie::setPlay(bool play)
{
    if (play == d->playing)
        return;
    if (play && d->isAtEnd())
        d->playedMs = 0;
    d->playedMs = d->position();
    d->timer.stop();
    d->playing = play;
    d->run();
}

void ZVLottie::setPaused(bool paused)
{
    setPlay(!paused);
}

bool ZVLottie::isPlaying() const
{
    return d->playing;
}

QSize ZVLottie::sizeHint() const
{
    if (!d->animationSize.isEmpty())
        return d->animationSize;
    return d->frames.animation() ? d->frames.animation()->size() : QWidget::sizeHint();
}

void ZVLottie::paintEvent(QPaintEvent *)
{
    if (!d->frames.animation())
        return;
    if (d->pixels() != d->frames.pixelSize())
        d->showFrame(); // the window has come to a screen of another density
    const QImage image = d->frames.current();
    if (image.isNull())
        return;
    QPainter painter(this);
    const QRect target = d->target();
    if (image.size() != target.size() * devicePixelRatioF())
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
}

void ZVLottie::resizeEvent(QResizeEvent *)
{
    d->run();
}

void ZVLottie::showEvent(QShowEvent *)
{
    d->onScreen = true;
    d->run();
}

void ZVLottie::hideEvent(QHideEvent *)
{
    d->onScreen = false;
    d->run();
    d->frames.trim();
}

void ZVLottie::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->timer.timerId())
        d->advance();
    else
        QWidget::timerEvent(event);
}

} // namespace Tarn
