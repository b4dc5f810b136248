#pragma once

#include "host/scan/scansource.h"

#include <QFutureWatcher>
#include <QImage>
#include <QWidget>

class QLabel;
class QToolButton;

/// Shows pictures of a source one at a time, fitted to the window. They are read off the GUI thread
/// and no larger than the screen needs.
class PictureViewer : public QWidget
{
    Q_OBJECT

public:
    explicit PictureViewer(std::shared_ptr<const ScanSource> source, QWidget *parent = nullptr);
    ~PictureViewer() override;

    void open(const QVector<FoundItem> &pictures, int current);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Loaded
    {
        QImage image;
        QString error;
    };

    void step(int by);
    void load();
    void placeButtons();

    std::shared_ptr<const ScanSource> m_source;
    QVector<FoundItem> m_pictures;
    int m_current = 0;
    QFutureWatcher<Loaded> m_watcher;
    Loaded m_loaded;
    QToolButton *m_previous;
    QToolButton *m_next;
};
