#pragma once

#include <QAbstractItemView>
#include <QFrame>
#include <QImage>
#include <QPointer>

/// One of the two frames as a stranger sees it: by the names of its widgets and through the models
/// of its views.
class Side
{
public:
    static constexpr int PathColumn = 4;

    explicit Side(QFrame *frame)
        : m_frame(frame)
    {
    }

    QFrame *frame() const { return m_frame; }
    template <typename Widget = QWidget>
    Widget *child(const char *name) const
    {
        return m_frame->findChild<Widget *>(QLatin1String(name));
    }
    bool shows(const char *name) const;

    QWidget *page() const;
    QAbstractItemView *grid() const { return child<QAbstractItemView>("listView"); }
    QAbstractItemView *table() const;
    /// The one that is in use.
    QAbstractItemView *view() const;
    int rows() const { return grid()->model()->rowCount(); }
    QModelIndex index(const QString &name, int column = 0) const;
    QStringList names() const;
    int selectAll() const;

    QImage picture() const { return m_frame->grab().toImage(); }
    QImage pictureOf(const QModelIndex &index) const;
    QColor background() const;

private:
    QPointer<QFrame> m_frame;
};
