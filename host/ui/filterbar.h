#pragma once

#include "platform/item/filtercondition.h"

#include <QFrame>

class QActionGroup;
class QToolButton;
struct HostTheme;

/// Kind, size, date, deleted only: what the results are narrowed to.
class FilterBar : public QFrame
{
    Q_OBJECT

public:
    explicit FilterBar(QWidget *parent = nullptr);

    FilterCondition condition() const;
    void clear();
    void setTheme(const HostTheme &theme);

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    QToolButton *addMenu(QActionGroup **choices);
    void fillMenus();
    void refresh();

    QToolButton *m_kind;
    QToolButton *m_size;
    QToolButton *m_date;
    QToolButton *m_deleted;
    QToolButton *m_clear;
    QActionGroup *m_kinds = nullptr;
    QActionGroup *m_sizes = nullptr;
    QActionGroup *m_dates = nullptr;
};
