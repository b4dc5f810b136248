#include "host/recovery/targettree.h"

#include "host/recovery/recoverytexts.h"
#include "host/recovery/safename.h"
#include "host/scan/shownpath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int MaxNumber = 1000000;
constexpr int ProbeBytes = 4096;

bool isTaken(const QFileInfo &info)
{
    return info.exists() || info.isSymLink();
}

} // namespace

TargetTree::TargetTree(const QString &target)
    : m_root(QDir::cleanPath(QFileInfo(target).absoluteFilePath()))
{
}

bool TargetTree::prepare(QString *error)
{
    const QString shown = shownPath(m_root);
    const QFileInfo info(m_root);
    if (info.exists() && !info.isDir()) {
        *error = RecoveryTexts::tr("%1 is not a folder.").arg(shown);
        return false;
    }
    if (!QDir().mkpath(m_root)) {
        *error = RecoveryTexts::tr("The folder %1 cannot be created.").arg(shown);
        return false;
    }
    return isWritable(error);
}

bool TargetTree::isWritable(QString *error) const
{
    const QString shown = shownPath(m_root);
    QFile probe;
    for (int i = 0; i < MaxNumber && !probe.isOpen(); ++i) {
        probe.setFileName(m_root + QStringLiteral("/.quarvo-probe-%1").arg(i));
        if (!probe.open(QIODevice::WriteOnly | QIODevice::NewOnly) && !isTaken(QFileInfo(probe))) {
            *error = RecoveryTexts::tr("Nothing can be written to %1: %2.")
                         .arg(shown, probe.errorString());
            return false;
        }
    }
    const bool written = probe.write(QByteArray(ProbeBytes, 'q')) == ProbeBytes && probe.flush();
    const QString cause = probe.errorString();
    probe.close();
    probe.remove();
    if (!written)
        *error = RecoveryTexts::tr("Nothing can be written to %1: %2.").arg(shown, cause);
    return written;
}

QString TargetTree::folderFor(const QString &cardPath, QString *error)
{
    QString card;
    QString folder = m_root;
    const QStringList parts = cardPath.split(QLatin1Char('/'));
    for (const QString &part : parts) {
        if (part.isEmpty())
            continue;
        card += QLatin1Char('/') + part;
        const auto known = m_folders.constFind(card);
        if (known != m_folders.constEnd()) {
            folder = *known;
            continue;
        }
        const QString name = safeFileName(part);
        QString made;
        for (int number = 1; number < MaxNumber && made.isEmpty(); ++number) {
            const QString candidate = folder + QLatin1Char('/')
                + (number == 1 ? name : numberedFileName(name, number));
            const QFileInfo info(candidate);
            if ((info.isDir() && !info.isSymLink()) || QDir().mkdir(candidate)) {
                made = candidate;
            } else if (!isTaken(QFileInfo(candidate))) {
                *error =
                    RecoveryTexts::tr("The folder %1 cannot be created.").arg(shownPath(candidate));
                return QString();
            }
        }
        m_folders.insert(card, made);
        folder = made;
    }
    return folder;
}

QString TargetTree::settle(const QString &temporary, const QString &folder, const QString &name,
                           QString *error)
{
    const QString safe = safeFileName(name);
    int &last = m_numbers[qMakePair(folder, safe)];
    for (int number = last + 1; number < MaxNumber; ++number) {
        const QString path = folder + QLatin1Char('/')
            + (number == 1 ? safe : numberedFileName(safe, number));
        if (isTaken(QFileInfo(path)))
            continue;
        QFile file(temporary);
        if (file.rename(path)) { // refuses to replace what came into being meanwhile
            last = number;
            return path;
        }
        if (!isTaken(QFileInfo(path))) {
            *error = RecoveryTexts::tr("The file %1 cannot be created: %2.")
                         .arg(shownPath(path), file.errorString());
            return QString();
        }
    }
    *error = RecoveryTexts::tr("Too many files have the name %1.").arg(safe);
    return QString();
}
