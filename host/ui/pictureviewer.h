#pragma once

#include "host/media/mediapool.h"

#include <QImage>
#include <QWidget>

class QLabel;
class QToolButton;

/// Shows pictures of a source one at a time, fitted to the window. The helper program decodes them,
/// no larger than the screen needs.
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
    void changeEvent(QEvent *event) override;

private:
    void step(int by);
    void load();
    void take(int request, const MediaAnswer &answer);
    void placeButtons();
    void retranslate();

    std::shared_ptr<const ScanSource> m_source;
    QVector<FoundItem> m_pictures;
    int m_current = 0;
    std::shared_ptr<MediaPool> m_media = MediaPool::shared();
    int m_request = 0;
    MediaAnswer m_loaded;
    QToolButton *m_previous;
    QToolButton *m_next;
};
