#include "content/typeahead.h"

#include <QAbstractItemModel>
#include <QApplication>

int TypeAhead::search(const QString &letters, const QAbstractItemModel &model, int currentRow)
{
    const bool goesOn = m_sinceLastLetter.isValid()
        && m_sinceLastLetter.elapsed() <= QApplication::keyboardInputInterval();
    m_sinceLastLetter.start();
    const bool startsAnew = !goesOn || m_typed.isEmpty();
    m_typed = startsAnew ? letters : m_typed + letters;
    if (m_typed.isEmpty())
        return -1;
    const bool sameLetter = m_typed.count(m_typed.at(0), Qt::CaseInsensitive) == m_typed.size();
    const QString wanted = sameLetter ? m_typed.left(1) : m_typed;

    const int rows = model.rowCount();
    // more letters may still mean the item that the first ones have found
    const int first = currentRow < 0 ? 0 : currentRow + (sameLetter ? 1 : 0);
    for (int i = 0; i < rows; ++i) {
        const int row = (first + i) % rows;
        const QModelIndex index = model.index(row, 0);
        if (index.isValid()
            && index.data(Qt::DisplayRole).toString().startsWith(wanted, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}
