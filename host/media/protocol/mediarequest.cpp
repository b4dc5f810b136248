#include "host/media/protocol/mediarequest.h"

#include <QDataStream>

namespace {
constexpr int MaxExtension = 255;
}

QByteArray MediaRequest::encode() const
{
    QByteArray payload;
    QDataStream out(&payload, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << quint8(task) << quint8(kind) << fileSize << cover << extension.left(MaxExtension);
    return payload;
}

bool MediaRequest::decode(const QByteArray &payload, MediaRequest *request)
{
    QDataStream in(payload);
    in.setVersion(QDataStream::Qt_5_15);
    quint8 task = 0;
    quint8 kind = 0;
    in >> task >> kind >> request->fileSize >> request->cover >> request->extension;
    request->task = Task(task);
    request->kind = Kind(kind);
    return in.status() == QDataStream::Ok && task <= Metadata && kind <= Video
        && request->fileSize >= 0;
}
