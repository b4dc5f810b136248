#pragma once

#include <QElapsedTimer>
#include <QString>

class QAbstractItemModel;

/// Finds an item by the letters that are typed one after the other. What has been typed is text and
/// not an index: it outlives a reset of the model.
class TypeAhead
{
public:
    /// The row of the next item whose text in the first column starts with what has been typed, -1
    /// when there is none. The same letter again and again goes from one item to the next, unless
    /// a name begins with all of them.
    int search(const QString &letters, const QAbstractItemModel &model, int currentRow);
    void stop() { m_typed.clear(); }

private:
    QString m_typed;
    QElapsedTimer m_sinceLastLetter;
};
