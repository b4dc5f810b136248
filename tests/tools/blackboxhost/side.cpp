#include "side.h"

#include <QStackedWidget>
#include <QTableView>

namespace {
constexpr int NameRole = 257;
}

bool Side::shows(const char *name) const
{
    const QWidget *widget = child(name);
    return widget && widget->isVisibleTo(m_frame);
}

QWidget *Side::page() const
{
    return child<QStackedWidget>("stackedWidget")->currentWidget();
}

QAbstractItemView *Side::table() const
{
    return m_frame->findChild<QTableView *>();
}

QAbstractItemView *Side::view() const
{
    return grid()->isVisibleTo(m_frame) ? grid() : table();
}

QModelIndex Side::index(const QString &name, int column) const
{
    const QAbstractItemModel *model = grid()->model();
    return model->index(int(names().indexOf(name)), column);
}

QStringList Side::names() const
{
    QStringList all;
    const QAbstractItemModel *model = grid()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        all << model->index(row, 0).data(NameRole).toString();
    return all;
}

int Side::selectAll() const
{
    return child("allCheckButton")->property("checkstate").toInt();
}

QImage Side::pictureOf(const QModelIndex &index) const
{
    return view()->viewport()->grab(view()->visualRect(index)).toImage();
}

QColor Side::background() const
{
    const QImage all = picture();
    return all.pixelColor(2, all.height() - 3);
}
