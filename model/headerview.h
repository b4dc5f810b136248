#pragma once

#include "model/headerviewsorttype.h"

#include <QWidget>

#include <array>
#include <memory>

class QPushButton;
class Restyling;

namespace Ui {
class HeaderView;
}

/// The bar above the grid: select-all and a button for each column to sort by. It only tells what
/// was clicked; who sorts and who checks is for its owner to say. GUI thread.
class HeaderView : public QWidget
{
    Q_OBJECT

public:
    explicit HeaderView(QWidget *parent = nullptr);
    ~HeaderView() override;

    HeaderViewSortType sortType() const { return m_sortType; }
    /// Shows a sort that was chosen elsewhere; emits nothing.
    void setSortType(HeaderViewSortType type);
    /// By name, ascending; emits nothing.
    void resetSort();

    /// 0, 1 or 2, as Qt::CheckState; another value is logged and changes nothing.
    void setCheckState(int state);
    int checkState() const;
    /// Where another select-all is on screen, this one is hidden.
    void setCheckButtonVisible(bool visible);
    /// The Tab key comes to the bar's buttons from \a widget.
    void setTabAfter(QWidget *widget);
    /// The place at the bar's right end, for what its owner wants to put there; hidden at first.
    QWidget *rightEndWidget() const;

    void updateTheme();
    void retranslate();
    /// Takes the font of FontManager again.
    void updateFont();

signals:
    void signalSortClicked(HeaderViewSortType type);
    void signalAllChecked(Qt::CheckState checkState);
    void signalResize(bool isSizeToLarge);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onSortClicked(int section);
    void onCheckAllClicked();
    void showSort();
    void setCheckIcon(const QString &name);
    void layOut();
    void layOutSpacers();
    void mirror();
    void loadStyleSheet();
    void restyle();

    std::unique_ptr<Ui::HeaderView> ui;
    std::array<QPushButton *, 4> m_sortButtons; ///< by section
    Restyling *m_restyling = nullptr;
    HeaderViewSortType m_sortType = NoSort;
    bool m_large = false;
};
