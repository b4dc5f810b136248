#pragma once

#include "host/scan/scanrunner.h"

#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;
struct HostTheme;

/// How far the scan is, what is chosen, and the way to recover it.
class BottomBar : public QFrame
{
    Q_OBJECT

public:
    explicit BottomBar(QWidget *parent = nullptr);

    void setProgress(const ScanProgress &progress, bool scanning);
    void setChecked(int files, qint64 bytes, int hidden);
    void setTheme(const HostTheme &theme);

signals:
    void stopRequested();
    void recoverRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QProgressBar *m_bar;
    QLabel *m_counts;
    QLabel *m_detail;
    QPushButton *m_stop;
    QLabel *m_checked;
    QLabel *m_checkedDetail;
    QPushButton *m_recover;
    ScanProgress m_progress;
    bool m_scanning = false;
    int m_files = 0;
    qint64 m_bytes = 0;
    int m_hidden = 0;
};
