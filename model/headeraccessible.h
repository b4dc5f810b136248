#pragma once

#include <QAccessibleWidget>
#include <QVector>

class ScanTableHeader;

/// What assistive technology sees of the table's header: its check box and its sections.
class HeaderAccessible : public QAccessibleWidget
{
public:
    explicit HeaderAccessible(ScanTableHeader *header);
    ~HeaderAccessible() override;

    /// Makes every ScanTableHeader accessible this way; further calls do nothing.
    static void install();
    /// The check box or the section is where the keyboard is.
    static void announceFocus(ScanTableHeader *header);
    static void announceCheck(ScanTableHeader *header);
    /// Another section is sorted by, or the same one the other way round.
    static void announceSort(ScanTableHeader *header, int section);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    ScanTableHeader *header() const;
    QAccessibleInterface *part(int part) const;

    mutable QVector<QAccessible::Id> m_parts; ///< the check box, then the sections; 0: not made
};
