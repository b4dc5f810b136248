#pragma once

#include "zvlottie_export.h"

#include <QWidget>

#include <memory>

namespace Tarn {

/// Plays a Lottie file at its own speed, centred and in its own proportions. Made paused. Frames
/// are rendered on a pool thread and kept up to 32 MB while the widget is on screen; paused,
/// hidden or minimised it costs no processor time, hidden no memory but the frame on show.
/// GUI thread.
class ZVLOTTIE_EXPORT ZVLottie : public QWidget
{
    Q_OBJECT

public:
    /// An empty \a source loads nothing; any other is loaded as by setSource().
    explicit ZVLottie(const QString &source, QWidget *parent = nullptr);
    ~ZVLottie() override;

    /// Loads the Lottie file \a path and goes to its start; playing goes on. False when it is
    /// missing or not an animation; what was loaded before is dropped in either case.
    bool setSource(const QString &path);
    /// Without a loop, which is the default, the animation stops on its last frame.
    void setisLoop(bool loop);
    /// Size of the drawn animation in device-independent pixels; by default the widget's.
    void setAnimationSize(const QSize &size);
    /// Milliseconds between two frames that are shown; below 1 the file's own frame rate. The
    /// speed stays: a long interval leaves frames out.
    void setTimeInterval(double milliseconds);
    /// Plays on, from the start where the last frame was reached; false pauses.
    void setPlay(bool play);
    void setPaused(bool paused);
    /// Also while nothing is loaded or seen: it says what will happen then.
    bool isPlaying() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct Q_DECL_HIDDEN Private;
    std::unique_ptr<Private> d;
};

} // namespace Tarn
