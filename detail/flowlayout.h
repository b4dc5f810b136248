#pragma once

#include <QLayout>
#include <QList>

/// Places items side by side and begins a new line where the width ends; from the right in a
/// right-to-left layout. An item wider than a line gets the line.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    FlowLayout(int spacing, QWidget *parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override { return m_items.size(); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Returns the height that \a rect's width needs; moves the items when \a apply.
    int arrange(const QRect &rect, bool apply) const;

    QList<QLayoutItem *> m_items;
};
