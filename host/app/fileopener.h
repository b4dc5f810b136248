#pragma once

#include "host/recovery/recoveryjob.h"

#include <QObject>
#include <QTemporaryDir>

/// Opens files of a source with the desktop's programs: a copy in a folder of its own, which goes
/// when the opener goes.
class FileOpener : public QObject
{
    Q_OBJECT

public:
    explicit FileOpener(QObject *parent = nullptr);
    ~FileOpener() override;

    void open(const std::shared_ptr<const ScanSource> &source, const FoundItem &file);

signals:
    void failed(const QString &reason);

private:
    QTemporaryDir m_folder;
};
