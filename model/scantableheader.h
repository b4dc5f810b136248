#pragma once

#include "model/headerlook.h"
#include "model/headerviewsorttype.h"
#include "model/sortcycle.h"

#include <QHeaderView>
#include <QVector>

struct HeaderSection;

/// The header of the list's table: select-all in the first section, a click on a section sorts,
/// the first column is widened by its edge. It only tells what was clicked; who sorts and who
/// checks is for its owner to say. GUI thread.
class ScanTableHeader : public QHeaderView
{
    Q_OBJECT
    // for the stylesheet
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor strongTextColor MEMBER m_strongTextColor)
    Q_PROPERTY(QColor hairlineColor MEMBER m_hairlineColor)
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor)

public:
    explicit ScanTableHeader(QWidget *parent = nullptr);

    int checkState() const { return m_checkState; }
    /// 0, 1 or 2, as Qt::CheckState; another value is logged and changes nothing.
    void setCheckState(int state);

    HeaderViewSortType sortType() const;
    /// Shows a sort that was chosen elsewhere; emits nothing.
    void setSortType(HeaderViewSortType type);
    /// No sort is chosen: rows stand as the host hands them over. Emits nothing.
    void resetSort();

    /// Beside the detail pane there is no room for the location column.
    void setDetailPaneShown(bool shown);
    /// Makes the visible columns fill \a viewportWidth. For the width that they fill already it
    /// changes nothing, so that a width which the user has given the first column stays.
    void fitColumns(int viewportWidth);

    /// What the keyboard and assistive technology find here: the check box, then the sections.
    static constexpr int CheckPart = 0;
    static constexpr int partOf(int section) { return section + 1; }
    static constexpr int sectionOf(int part) { return part - 1; }
    QVector<int> shownParts() const;
    /// False where there is nothing to do.
    bool takesKeys(int part) const;
    /// In the viewport.
    QRect partRect(int part) const;
    /// What a click on it does.
    void activate(int part);
    /// Where the keyboard is, or was when it left.
    int focusPart() const { return m_focusPart; }
    void setFocusPart(int part);
    QString textOf(int logicalIndex) const;

    QSize sizeHint() const override;
    void updateTheme();
    /// The texts are the model's; columns are measured again.
    void retranslate();
    /// Takes the font of FontManager again; columns are measured again.
    void updateFont();

signals:
    void signalAllChecked(Qt::CheckState checkState);
    void signalSortClicked(HeaderViewSortType type);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;
    QSize sectionSizeFromContents(int logicalIndex) const override;

private:
    HeaderSection sectionAt(int logicalIndex) const;
    /// True when the press was ours; the base class gets what is left.
    bool press(const QPoint &pos);
    bool isOnFirstEdge(int x) const;
    void startResizing(int x);
    void setEdgeCursor(bool shown);
    void setHoverSection(int section);
    void sortBy(int section);
    void toggleCheck();
    void moveFocus(bool onward);

    HeaderLook::Mark markOf(int logicalIndex) const;
    void applyHiddenColumns();
    void refit();

    int m_checkState = Qt::Unchecked;
    int m_sortSection = SortCycle::NoSection;
    bool m_descending = false;
    bool m_resizing = false;
    int m_dragStartX = 0;
    int m_dragStartWidth = 0;
    int m_focusPart = CheckPart;
    HeaderLook m_look;
    bool m_edgeCursor = false;
    int m_hoverSection = SortCycle::NoSection;
    bool m_detailPaneShown = false;
    int m_fittedWidth = -1;        ///< of the viewport; -1: the columns want fitting
    QColor m_textColor = Qt::gray; ///< on a page of either theme, where no stylesheet has come
    QColor m_strongTextColor = Qt::gray;
    QColor m_hairlineColor = Qt::gray;
    QColor m_focusColor = Qt::gray;
};
