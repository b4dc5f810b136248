#pragma once

#include <QAbstractListModel>

/// A list of any length that holds nothing: row n is called "item n", and its id is n.
class PlainListModel : public QAbstractListModel
{
public:
    enum { IdRole = Qt::UserRole + 4 };

    explicit PlainListModel(int rows = 0, QObject *parent = nullptr)
        : QAbstractListModel(parent)
        , m_rows(rows)
    {
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid())
            return {};
        if (role == Qt::DisplayRole)
            return QStringLiteral("item %1").arg(index.row());
        return role == IdRole ? QVariant(index.row()) : QVariant();
    }

    void reset(int rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }

    void insert(int row, int count)
    {
        beginInsertRows({}, row, row + count - 1);
        m_rows += count;
        endInsertRows();
    }

private:
    int m_rows;
};
