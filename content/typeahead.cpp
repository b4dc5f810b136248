#include "content/typeahead.h"

#include <QAbstractItemModel>
#include <QApplication>

namespace {

/// A row whose record has died has no index to start from.
QModelIndex firstIndexFrom(const QAbstractItemModel &model, int row)
{
    const int rows = model.rowCount();
    for (int step = 0; step < rows; ++step) {
        const QModelIndex index = model.index((row + step) % rows, 0);
        if (index.isValid())
            return index;
    }
    return {};
}

} // namespace

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
    // more letters may still mean the item that the first ones have found
    const int first = currentRow < 0 ? 0 : currentRow + (sameLetter ? 1 : 0);
    const QModelIndex start = firstIndexFrom(model, first);
    if (!start.isValid())
        return -1;
    // the model knows a quicker way than to ask for each name
    const auto match = [&](const QString &text) {
        return model.match(start, Qt::DisplayRole, text, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    };
    QModelIndexList found = match(m_typed);
    if (found.isEmpty() && sameLetter)
        found = match(QString(m_typed.at(0)));
    return found.isEmpty() ? -1 : found.first().row();
}
