#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

namespace Tarn {
class ZVLottie;
}

/// The animation of the scanning page, inside the frame that is given to the constructor and that
/// owns the player. The file is an installed one: shared by all users, or beside the application.
class ScanAnimation : public QObject
{
    Q_OBJECT

public:
    explicit ScanAnimation(QWidget *frame, QObject *parent = nullptr);

    /// Makes the player when there is none and loads the file; tried once more a little later when
    /// neither place has it. Ends paused.
    void initScaningLottie();
    bool exists() const { return !m_player.isNull(); }
    void start();
    void stop();

private:
    void retryLater(const QString &path);

    QWidget *m_frame;
    QPointer<Tarn::ZVLottie> m_player;
    bool m_playing = false;
};
