#include "thumbnails/highdpipixmapsmanager.h"

#include "platform/system/system.h"

#include <QDebug>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QTimer>
#include <QtConcurrent>

#include <utility>

namespace {

constexpr auto LicenceFile = "/Zenvoor/Quarvo/LicenceState.ini";
constexpr auto LicenceKey = "LicenceState";

/// The host's flag; not set where the host has written none.
bool licenceFlag()
{
    const QString profile = qEnvironmentVariable("ALLUSERSPROFILE");
    const QString path = profile + QLatin1String(LicenceFile);
    if (profile.isEmpty() || !QFile::exists(path))
        return false;
    const QSettings settings(path, QSettings::IniFormat);
    return settings.value(QLatin1String(LicenceKey)).toString() == QLatin1String("true");
}

} // namespace

HighDpiPixmapsManager *HighDpiPixmapsManager::instance()
{
    static auto *manager = new HighDpiPixmapsManager;
    return manager;
}

HighDpiPixmapsManager::HighDpiPixmapsManager(Look look, QObject *parent)
    : QObject(parent)
    , m_look(look)
{
}

HighDpiPixmapsManager::Means HighDpiPixmapsManager::lookAtMachine()
{
    return {System::availablePhysicalMemory(), licenceFlag()};
}

void HighDpiPixmapsManager::preloadAfterFirstPaint(QWidget *window)
{
    if (!m_preloads && window)
        window->installEventFilter(this);
}

bool HighDpiPixmapsManager::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        if (std::exchange(m_preloads, true))
            return false; // for another window
        // The children are painted after their parent, and all of it is shown after that.
        QTimer::singleShot(0, this, [this] {
            QtConcurrent::run(this, &HighDpiPixmapsManager::startAnalysisPixmapItemList);
        });
    }
    return QObject::eventFilter(watched, event);
}

void HighDpiPixmapsManager::startAnalysisPixmapItemList()
{
    const Means means = m_look();
    const bool skipped = means.availableMemory <= LeastMemory || means.licenceForbids;
    qDebug() << "startAnalysisPixmapItemList start";
    for (int i = 0; i < SpriteSheets::Count && !skipped; ++i) {
        // Images, for pixmaps belong to the GUI thread.
        QVector<QImage> frames = SpriteSheets::cut(SpriteSheets::layout(SpriteSheets::Sheet(i)));
        const std::lock_guard lock(m_mutex);
        m_cut[size_t(i)] = std::move(frames);
    }
    qDebug() << "startAnalysisPixmapItemList end";
}

QVector<QPixmap> HighDpiPixmapsManager::frames(SpriteSheets::Sheet sheet)
{
    QVector<QPixmap> &frames = m_frames[size_t(sheet)];
    if (!frames.isEmpty())
        return frames;
    QVector<QImage> cut;
    {
        const std::lock_guard lock(m_mutex);
        cut = std::exchange(m_cut[size_t(sheet)], {});
    }
    frames.reserve(cut.size());
    for (const QImage &image : qAsConst(cut))
        frames.append(QPixmap::fromImage(image));
    return frames;
}

HighDpiPixmapsButton *
HighDpiPixmapsManager::createButton(const QString &folder,
                                    const HighDpiPixmapsButton::Images &images, QWidget *parent)
{
    return new HighDpiPixmapsButton(folder, images, parent);
}

void HighDpiPixmapsManager::setLabelPixmap(QLabel *label, QPixmap pixmap, qreal scale)
{
    if (!label)
        return;
    pixmap.setDevicePixelRatio(scale);
    label->setPixmap(pixmap);
}
