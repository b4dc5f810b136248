#pragma once

#include "host/tree/itemtree.h"

#include <QFrame>

class QHBoxLayout;
class QToolButton;
struct HostTheme;

/// Where in the results the user is: a way up, the kinds and places in a menu, and the folders
/// above. The folders in the middle go first where the room is short.
class Breadcrumbs : public QFrame
{
    Q_OBJECT

public:
    explicit Breadcrumbs(const ItemTree &tree, QWidget *parent = nullptr);

    void follow(ItemRecord *shown);
    void followSearch(const QString &keyword, bool described, int count);
    void setTheme(const HostTheme &theme);

signals:
    void picked(ItemRecord *root);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    QSize minimumSizeHint() const override;

private:
    QToolButton *addCrumb(const QString &text, bool last);
    void addPlacesMenu(QToolButton *button);
    void rebuild();
    void fit();

    const ItemTree &m_tree;
    QToolButton *m_up;
    QHBoxLayout *m_row;
    QVector<QToolButton *> m_crumbs;
    ItemRecord *m_shown = nullptr;
    QString m_keyword;
    bool m_described = false;
    int m_matches = 0;
    QColor m_icon;
    QColor m_off;
};
