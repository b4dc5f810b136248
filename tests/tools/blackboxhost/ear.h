#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// Hears every signal that an object's own class declares, knowing nothing of that class. What was
/// said is kept as "signature: arguments", a record by its name, an enumeration by its number.
class Ear : public QObject
{
public:
    explicit Ear(QObject *speaker);

    /// In declaration order.
    QStringList signatures() const;
    bool hasHeard(const QByteArray &signature, const QString &arguments) const;

    QStringList heard;

protected:
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    QList<QMetaMethod> m_signals;
};
