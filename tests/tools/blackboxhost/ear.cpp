#include "ear.h"

#include <treeitemdata.h>

Ear::Ear(QObject *speaker)
{
    const QMetaObject *said = speaker->metaObject();
    for (int i = said->methodOffset(); i < said->methodCount(); ++i) {
        const QMetaMethod method = said->method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        QMetaObject::connect(speaker, i, this,
                             QObject::staticMetaObject.methodCount() + m_signals.size());
        m_signals << method;
    }
}

QStringList Ear::signatures() const
{
    QStringList all;
    for (const QMetaMethod &method : m_signals)
        all << QString::fromLatin1(method.methodSignature());
    return all;
}

bool Ear::hasHeard(const QByteArray &signature, const QString &arguments) const
{
    return heard.contains(QString::fromLatin1(signature) + QStringLiteral(": ") + arguments);
}

int Ear::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (call != QMetaObject::InvokeMetaMethod || id < 0 || id >= m_signals.size())
        return id;
    const QMetaMethod method = m_signals.at(id);
    QStringList words;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QByteArray type = method.parameterTypes().at(i);
        const void *argument = arguments[i + 1];
        if (type == "TreeItemData*") {
            const auto *item = *static_cast<TreeItemData *const *>(argument);
            words << (item ? item->name : QStringLiteral("null"));
        } else if (type == "QString") {
            words << *static_cast<const QString *>(argument);
        } else {
            words << QString::number(*static_cast<const int *>(argument));
        }
    }
    heard << QString::fromLatin1(method.methodSignature()) + QStringLiteral(": ")
            + words.join(QLatin1Char(' '));
    return -1;
}
