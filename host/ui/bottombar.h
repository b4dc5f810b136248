#pragma once

#include "host/scan/scanrunner.h"

#include <QFrame>
#include <QIcon>

class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;
struct HostTheme;

/// How far the scan is, what is checked, whether it fits where it shall go, and the way to recover
/// it.
class BottomBar : public QFrame
{
    Q_OBJECT

public:
    explicit BottomBar(QWidget *parent = nullptr);

    void setProgress(const ScanProgress &progress, bool scanning);
    void setChecked(int files, qint64 bytes, int hidden);
    /// Where files are recovered to, and the free bytes there; -1: unknown.
    void setTarget(const QString &folder, qint64 freeBytes);
    void setTheme(const HostTheme &theme);

signals:
    void stopRequested();
    void recoverRequested();
    void targetRequested();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void retranslate();
    void refreshStop();
    void refreshChecked();
    bool isTooMuch() const { return m_files > 0 && m_free >= 0 && m_bytes > m_free; }

    QProgressBar *m_bar;
    QLabel *m_counts;
    QLabel *m_detail;
    QPushButton *m_stop;
    QLabel *m_checked;
    QLabel *m_checkedDetail;
    QLabel *m_warning;
    QToolButton *m_choose;
    QPushButton *m_recover;
    QIcon m_stopIcon;
    bool m_isCompact = false;
    ScanProgress m_progress;
    bool m_scanning = false;
    int m_files = 0;
    qint64 m_bytes = 0;
    int m_hidden = 0;
    QString m_target;
    qint64 m_free = -1;
};
