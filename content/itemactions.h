#pragma once

class QModelIndex;

/// What assistive technology can do with an item of a view beside selecting it. The view only
/// passes it on, as it does with a click.
class ItemActions
{
public:
    virtual ~ItemActions() = default;
    virtual void requestToggle(const QModelIndex &index) = 0;
    virtual void requestOpen(const QModelIndex &index) = 0;
};
