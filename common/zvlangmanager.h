#pragma once

#include <QObject>
#include <QString>

/// Dates, sizes, numbers and amounts in the user's language, through the host's localisation
/// library. Shared by all modules of a process through the application property "ZVLangManager"
/// (void*). A library failure is logged and gives what the answer holds, usually nothing. GUI
/// thread.
class ZVLangManager : public QObject
{
    Q_OBJECT

public:
    static ZVLangManager *instance();

    /// \a lang is a code such as "en-us". Invokable, as is exit(), so that a host which shares no
    /// code with us can call it by name.
    Q_INVOKABLE bool init(const QString &pid, const QString &did, const QString &wsid,
                          const QString &pver, const QString &lang);
    Q_INVOKABLE bool exit();
    QString language() const { return m_lang; }

    QString getDateStr(qint64 seconds) const;
    /// Milliseconds are recognised by their magnitude and converted.
    QString getDateTimeStr(qint64 timestamp) const;
    QString getNumberStr(double number) const;
    QString getMoneyStr(double money) const;
    QString getStorageStr(qint64 bytes, int precision) const;

private:
    explicit ZVLangManager(QObject *parent = nullptr);

    QString m_lang;
};
