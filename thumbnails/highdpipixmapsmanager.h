#pragma once

#include "common/highdpipixmapsbutton.h"
#include "thumbnails/spritesheets.h"

#include <QObject>
#include <QPixmap>
#include <QVector>

#include <array>
#include <mutex>

class QLabel;

/// Pictures that have to be there at once: cuts the animation sprite sheets into frames on a pool
/// thread, makes picture buttons and puts pictures on labels at the screen's scale. GUI thread but
/// for startAnalysisPixmapItemList(), which must have ended before the object goes.
class HighDpiPixmapsManager : public QObject
{
    Q_OBJECT

public:
    /// What decides whether the sheets are cut at all.
    struct Means
    {
        quint64 availableMemory = 0; ///< bytes; 0 where the system does not say
        bool licenceForbids = false;
    };
    using Look = Means (*)(); ///< called on the pool thread

    /// Nothing is cut with as much available memory, or less.
    static constexpr quint64 LeastMemory = 1024 * 1024 * 1024;

    /// The one of the process; never destroyed.
    static HighDpiPixmapsManager *instance();
    explicit HighDpiPixmapsManager(Look look = &HighDpiPixmapsManager::lookAtMachine,
                                   QObject *parent = nullptr);

    /// Cuts the sheets on a pool thread once \a window, or a widget in it, has been painted for the
    /// first time: the first frame does not share the processor. Once a process, after the first of
    /// all the windows that this is called with.
    void preloadAfterFirstPaint(QWidget *window);
    /// The cutting itself; writes its start and its end to the log whether it cuts or not.
    void startAnalysisPixmapItemList();

    /// The frames of a sheet; empty until they are cut, and for good where they are not. The first
    /// call makes the pixmaps, later ones share them.
    QVector<QPixmap> frames(SpriteSheets::Sheet sheet);

    /// The button is \a parent's, or the caller's without one.
    HighDpiPixmapsButton *createButton(const QString &folder,
                                       const HighDpiPixmapsButton::Images &images, QWidget *parent);
    /// Puts \a pixmap, painted for a screen of \a scale, on \a label. A null label is left alone.
    void setLabelPixmap(QLabel *label, QPixmap pixmap, qreal scale);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static Means lookAtMachine();

    const Look m_look;
    bool m_preloads = false;
    std::mutex m_mutex; ///< guards m_cut alone
    std::array<QVector<QImage>, SpriteSheets::Count> m_cut;
    std::array<QVector<QPixmap>, SpriteSheets::Count> m_frames;
};
