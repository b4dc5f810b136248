#pragma once

#include "model/headerviewsorttype.h"

#include <QObject>

class ContentViews;
class HeaderView;
class ScanDataModel;
class ScanTableHeader;

/// One order for the grid's bar, the table's header and the model: a click on either sorts at once
/// and shows on both. GUI thread.
class SortChoice : public QObject
{
    Q_OBJECT

public:
    SortChoice(HeaderView *bar, ScanTableHeader *header, ScanDataModel *model, ContentViews *views,
               QObject *parent);

    void reset();

signals:
    /// The model is sorted already.
    void chosen(HeaderViewSortType type);

private:
    void choose(HeaderViewSortType type);

    HeaderView *m_bar;
    ScanTableHeader *m_header;
    ScanDataModel *m_model;
    ContentViews *m_views;
};
