#include "model/spokentext.h"

#include "common/translation.h"
#include "model/itemtext.h"
#include "platform/item/treeitemdata.h"

#include <QLocale>

namespace {

constexpr int FileKind = 2;

} // namespace

QString SpokenText::checkState(int state)
{
    switch (state) {
    case Qt::Checked:
        return tr("Checked");
    case Qt::PartiallyChecked:
        return tr("Partly checked");
    default:
        return tr("Not checked");
    }
}

QString SpokenText::kind(const TreeItemData &item)
{
    if (item.kind != FileKind)
        return translatedKey("folder");
    switch (item.fileCategory) {
    case 2:
        return tr("Audio file");
    case 3:
    case 4:
        return tr("Video");
    case 5:
        return tr("Document");
    case 6:
        return tr("E-mail");
    case 7:
        return tr("Database");
    case 8:
        return tr("Photo");
    case 9:
        return tr("Web page");
    case 10:
        return tr("Archive");
    default:
        return item.extension.isEmpty() ? tr("File") : tr("%1 file").arg(item.extension.toUpper());
    }
}

QString SpokenText::description(const TreeItemData &item, Recoverability level)
{
    QStringList parts{kind(item)};
    if (item.kind != FileKind && item.itemCount >= 0)
        parts << tr("items: %1").arg(QLocale().toString(item.itemCount));
    if (ItemText::bytes(item) > 0)
        parts << ItemText::size(item);
    if (item.kind == FileKind)
        parts << tr("%1: %2").arg(translatedKey("recoverability_label"),
                                  translatedKey(recoverabilityKey(level)));
    return joined(parts);
}

QString SpokenText::position(int row, int count)
{
    const QLocale locale;
    return tr("%1 of %2").arg(locale.toString(row + 1), locale.toString(count));
}

QString SpokenText::sortOrder(bool descending)
{
    return descending ? tr("Sorted in descending order") : tr("Sorted in ascending order");
}

QString SpokenText::scrollBar()
{
    return tr("Scroll bar");
}

QString SpokenText::joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(tr(", ", "between the parts of a spoken description"));
}
