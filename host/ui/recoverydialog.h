#pragma once

#include "host/recovery/recoveryjob.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
struct HostTheme;

/// Recovers files and shows how it goes, then what came of it, failures one by one.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    RecoveryDialog(std::shared_ptr<const ScanSource> source, const HostTheme &theme,
                   QWidget *parent);

    void start(const QVector<FoundItem> &items, const QString &target);

    /// In one sentence.
    static QString summaryOf(const RecoveryReport &report, const QString &target);

signals:
    void recovered(const RecoveryReport &report);

protected:
    void reject() override;
    void changeEvent(QEvent *event) override;

private:
    void showProgress(const RecoveryProgress &progress);
    void showReport(const RecoveryReport &report);
    void retranslate();

    RecoveryJob m_job;
    QString m_target;
    int m_files = 0;
    RecoveryProgress m_progress;
    RecoveryReport m_report;
    bool m_isDone = false;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_detail;
    QProgressBar *m_bar;
    QListWidget *m_failures;
    QPushButton *m_openTarget;
    QPushButton *m_close;
    QColor m_good;
    QColor m_bad;
};
