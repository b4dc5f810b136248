#include "content/sortchoice.h"

#include "common/guard.h"
#include "content/contentviews.h"
#include "model/headerview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "model/sortcycle.h"

SortChoice::SortChoice(HeaderView *bar, ScanTableHeader *header, ScanDataModel *model,
                       ContentViews *views, QObject *parent)
    : QObject(parent)
    , m_bar(bar)
    , m_header(header)
    , m_model(model)
    , m_views(views)
{
    connect(bar, &HeaderView::signalSortClicked, this, &SortChoice::choose);
    connect(header, &ScanTableHeader::signalSortClicked, this, &SortChoice::choose);
}

void SortChoice::choose(HeaderViewSortType type)
{
    guarded(Q_FUNC_INFO, [this, type] {
        m_bar->setSortType(type);
        m_header->setSortType(type);
        // The sections that sort are the model's first columns.
        if (SortCycle::section(type) != SortCycle::NoSection)
            m_views->sort(SortCycle::section(type),
                          SortCycle::isDescending(type) ? Qt::DescendingOrder : Qt::AscendingOrder);
        emit chosen(type);
    });
}

void SortChoice::reset()
{
    m_model->clearSort();
    m_bar->resetSort();
    m_header->resetSort();
}
