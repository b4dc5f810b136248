#include "model/headeraccessible.h"

#include "common/translation.h"
#include "model/scantableheader.h"
#include "model/spokentext.h"

#include <QPointer>

namespace {

using Header = ScanTableHeader;

/// The check box or a section.
class PartAccessible : public QAccessibleInterface,
                       public QAccessibleActionInterface,
                       public QAccessibleTableCellInterface
{
public:
    PartAccessible(Header *header, int part)
        : m_header(header)
        , m_part(part)
    {
    }

    bool isValid() const override { return m_header && m_part <= m_header->count(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessibleInterface *parent() const override
    {
        return m_header ? QAccessible::queryAccessibleInterface(m_header) : nullptr;
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }

    QAccessible::Role role() const override
    {
        return isCheckBox() ? QAccessible::CheckBox : QAccessible::ColumnHeader;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (isCheckBox()) {
            if (kind == QAccessible::Value)
                return SpokenText::checkState(m_header->checkState());
            return kind == QAccessible::Name ? translatedKey("select_all") : QString();
        }
        if (kind == QAccessible::Name)
            return m_header->textOf(section());
        return kind == QAccessible::Description && isSorted()
            ? SpokenText::sortOrder(SortCycle::isDescending(m_header->sortType()))
            : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect part = m_header->partRect(m_part);
        return {m_header->viewport()->mapToGlobal(part.topLeft()), part.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.invisible = !m_header->isVisible();
        state.focusable = m_header->takesKeys(m_part);
        state.focused = m_header->hasFocus() && m_header->focusPart() == m_part;
        if (isCheckBox()) {
            state.checkable = true;
            state.checked = m_header->checkState() == Qt::Checked;
            state.checkStateMixed = m_header->checkState() == Qt::PartiallyChecked;
        }
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        if (type == QAccessible::TableCellInterface && !isCheckBox())
            return static_cast<QAccessibleTableCellInterface *>(this);
        return nullptr;
    }

    QStringList actionNames() const override
    {
        if (!isValid() || !m_header->takesKeys(m_part))
            return {};
        return {isCheckBox() ? toggleAction() : pressAction(), setFocusAction()};
    }
    void doAction(const QString &action) override
    {
        if (!isValid() || !actionNames().contains(action))
            return;
        if (action == setFocusAction()) {
            m_header->setFocus(Qt::OtherFocusReason);
            m_header->setFocusPart(m_part);
        } else {
            m_header->activate(m_part);
        }
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

    bool isSelected() const override { return false; }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override
    {
        int column = -1;
        for (int each = 0; each <= section(); ++each)
            column += m_header->isSectionHidden(each) ? 0 : 1;
        return column;
    }
    int rowIndex() const override { return 0; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override
    {
        return m_header ? QAccessible::queryAccessibleInterface(m_header->parentWidget()) : nullptr;
    }

private:
    bool isCheckBox() const { return m_part == Header::CheckPart; }
    int section() const { return Header::sectionOf(m_part); }
    bool isSorted() const { return SortCycle::section(m_header->sortType()) == section(); }

    QPointer<Header> m_header;
    int m_part;
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *header = qobject_cast<Header *>(object);
    return header ? new HeaderAccessible(header) : nullptr;
}

} // namespace

HeaderAccessible::HeaderAccessible(ScanTableHeader *header)
    : QAccessibleWidget(header, QAccessible::Row)
{
}

HeaderAccessible::~HeaderAccessible()
{
    for (QAccessible::Id id : qAsConst(m_parts)) {
        if (id)
            QAccessible::deleteAccessibleInterface(id);
    }
}

void HeaderAccessible::install()
{
    static bool installed = false;
    if (!installed)
        QAccessible::installFactory(makeAccessible);
    installed = true;
}

ScanTableHeader *HeaderAccessible::header() const
{
    return static_cast<ScanTableHeader *>(object());
}

QAccessibleInterface *HeaderAccessible::part(int part) const
{
    if (m_parts.size() <= part)
        m_parts.resize(part + 1);
    if (!m_parts.at(part))
        m_parts[part] = QAccessible::registerAccessibleInterface(
            new PartAccessible(header(), part));
    return QAccessible::accessibleInterface(m_parts.at(part));
}

int HeaderAccessible::childCount() const
{
    return header() ? header()->shownParts().size() : 0;
}

QAccessibleInterface *HeaderAccessible::child(int index) const
{
    return index >= 0 && index < childCount() ? part(header()->shownParts().at(index)) : nullptr;
}

int HeaderAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    for (int index = 0; index < childCount(); ++index) {
        if (this->child(index) == child)
            return index;
    }
    return -1;
}

QAccessibleInterface *HeaderAccessible::childAt(int x, int y) const
{
    // the check box lies in the first section and comes first
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->rect().contains(x, y))
            return child(index);
    }
    return nullptr;
}

QAccessibleInterface *HeaderAccessible::focusChild() const
{
    return header() && header()->count() > 0 ? part(header()->focusPart()) : nullptr;
}

// Events ---------------------------------------------------------------------------------------

void HeaderAccessible::announceFocus(ScanTableHeader *header)
{
    if (!header->hasFocus())
        return;
    QAccessibleEvent event(header, QAccessible::Focus);
    event.setChild(header->shownParts().indexOf(header->focusPart()));
    QAccessible::updateAccessibility(&event);
}

void HeaderAccessible::announceCheck(ScanTableHeader *header)
{
    QAccessible::State changed;
    changed.checked = true;
    changed.checkStateMixed = true;
    QAccessibleStateChangeEvent event(header, changed);
    event.setChild(header->shownParts().indexOf(ScanTableHeader::CheckPart));
    QAccessible::updateAccessibility(&event);
}

void HeaderAccessible::announceSort(ScanTableHeader *header, int section)
{
    const int child = header->shownParts().indexOf(ScanTableHeader::partOf(section));
    if (child < 0)
        return;
    QAccessibleEvent event(header, QAccessible::DescriptionChanged);
    event.setChild(child);
    QAccessible::updateAccessibility(&event);
}
