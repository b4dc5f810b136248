#pragma once

#include "zvlottie_export.h"

#include <QWidget>

namespace Tarn {

/// Plays a Lottie file. Made paused; a paused animation costs nothing. GUI thread.
class ZVLOTTIE_EXPORT ZVLottie : public QWidget {
    Q_OBJECT

public:
    /// An empty \a source loads nothing; any other is loaded as by setSource().
    explicit ZVLottie(const QString &source, QWidget *parent = nullptr);
    ~ZVLottie() override;

    /// Loads the Lottie file \a path. False when it is missing or not an animation; what was
    /// loaded before is dropped in either case.
    bool setSource(const QString &path);
    void setisLoop(bool loop);
    /// Size of the drawn animation in device-independent pixels.
    void setAnimationSize(const QSize &size);
    /// Milliseconds between two frames that are shown; below 1 the file's own frame rate.
    void setTimeInterval(double milliseconds);
    void setPlay(bool play);
    void setPaused(bool paused);
    bool isPlaying() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace Tarn
