#include "content/scananimation.h"

#include "platform/lottie/zvlottie.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QTimer>
#include <QWidget>

namespace {

constexpr int RetryMs = 2000;
constexpr double FrameIntervalMs = 20.0;

QString sharedFile()
{
    return qEnvironmentVariable("ALLUSERSPROFILE")
        + QStringLiteral("/Zenvoor/Quarvo/LottieFiles/Scanning/data.json");
}

QString applicationFile()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/LottieFiles/Scanning/data.json");
}

} // namespace

ScanAnimation::ScanAnimation(QWidget *frame, QObject *parent)
    : QObject(parent)
    , m_frame(frame)
{
}

void ScanAnimation::initScaningLottie()
{
    if (!m_player) {
        m_player = new Tarn::ZVLottie(QString(), m_frame);
        m_player->show(); // the frame may be on screen already
    }
    m_player->setGeometry(QRect(QPoint(0, 0), m_frame->size()));
    m_player->setisLoop(true);
    m_player->setAnimationSize(m_frame->size());
    m_player->setTimeInterval(FrameIntervalMs);

    const QString primary = sharedFile();
    if (!m_player->setSource(primary)) {
        qDebug() << "SDCardContentDataWidget::initScaningLottie load lottie file failed 1:"
                 << primary;
        // A file that is there but could not be read may just be being replaced: try it again.
        const QString second = QFileInfo::exists(primary) ? primary : applicationFile();
        if (!m_player->setSource(second)) {
            qDebug() << "SDCardContentDataWidget::initScaningLottie load lottie file failed 2:"
                     << second;
            retryLater(primary);
        }
    }
    m_player->setPaused(true);
}

void ScanAnimation::retryLater(const QString &path)
{
    QTimer::singleShot(RetryMs, this, [this, path] {
        if (!m_player)
            return;
        const bool loaded = m_player->setSource(path);
        qDebug() << "SDCardContentDataWidget::initScaningLottie load lottie file ret =" << loaded;
        if (loaded && m_playing)
            m_player->setPlay(true);
    });
}

void ScanAnimation::start()
{
    m_playing = true;
    if (m_player)
        m_player->setPlay(true);
}

void ScanAnimation::stop()
{
    m_playing = false;
    if (m_player)
        m_player->setPaused(true);
}
