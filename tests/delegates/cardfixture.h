#pragma once

#include "common/thememanager.h"
#include "delegates/cardlayout.h"
#include "model/scandatamodel.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <memory>
#include <vector>

/// A folder of records in a model, and the hands to paint and poke its cards.
class CardFixture
{
public:
    static constexpr int Folder = 1;
    static constexpr int File = 2;
    static constexpr int Photo = 8;
    static constexpr int Video = 3;
    static constexpr int Document = 5;

    CardFixture()
    {
        root.kind = Folder;
        root.checkState = Qt::PartiallyChecked; // every folder shows its own state
        ThemeManager::instance()->setThemeType(LightTheme);
    }

    TreeItemData *add(const QString &name, int kind = File, int category = Document)
    {
        auto item = std::make_unique<TreeItemData>();
        item->name = name;
        item->kind = kind;
        item->fileCategory = category;
        static qint64 lastId = 500000;
        item->fileId = ++lastId;
        item->itemCount = kind == File ? 0 : 3;
        item->parent = &root;
        (kind == File ? root.childFiles : root.childFolders).append(item.get());
        items.push_back(std::move(item));
        root.itemCount = qint64(items.size());
        model.openFolder(&root);
        return items.back().get();
    }
    /// The row's index, wherever the record stands.
    QModelIndex indexOf(const TreeItemData *item)
    {
        return model.index(model.rowOfFileId(item->fileId), 0);
    }
    /// As a host does it: out of its lists, then gone.
    void destroy(TreeItemData *item)
    {
        root.childFiles.removeAll(item);
        root.childFolders.removeAll(item);
        for (auto &owned : items) {
            if (owned.get() == item)
                owned.reset();
        }
    }

    static QStyleOptionViewItem option(QStyle::State state = {})
    {
        QStyleOptionViewItem result;
        result.rect = QRect(QPoint(), CardLayout::sizeHint());
        result.palette.setColor(QPalette::Base, Qt::white);
        result.state = state | QStyle::State_Enabled;
        return result;
    }
    static QImage paintWith(const QAbstractItemDelegate &delegate, const QModelIndex &index,
                            const QStyleOptionViewItem &option, qreal scale = 1)
    {
        QImage image((QSizeF(option.rect.size()) * scale).toSize(), QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        painter.scale(scale, scale);
        painter.translate(-option.rect.topLeft());
        delegate.paint(&painter, option, index);
        return image;
    }
    static QImage paint(const QAbstractItemDelegate &delegate, const QModelIndex &index,
                        QStyle::State state = {})
    {
        return paintWith(delegate, index, option(state));
    }
    /// Writes down what a delegate says, in its order.
    template <class Delegate>
    static void listen(Delegate *delegate, QStringList *said)
    {
        const auto note = [said](const char *what) {
            return [said, what] { said->append(QLatin1String(what)); };
        };
        QObject::connect(delegate, &Delegate::signalCheckStateChange, delegate,
                         [said](const QModelIndex &, Qt::CheckState state) {
                             said->append(QStringLiteral("check %1").arg(state));
                         });
        QObject::connect(delegate, &Delegate::signalClickRightButton, delegate, note("right"));
        QObject::connect(delegate, &Delegate::signalClickDouble, delegate, note("double"));
        QObject::connect(delegate, &Delegate::signalMutilSelectEvent, delegate, note("multi"));
        QObject::connect(delegate, &Delegate::signalShowTooltip, delegate,
                         [said](const QString &tip) { said->append("tip " + tip); });
    }
    bool send(QAbstractItemDelegate *delegate, const QModelIndex &index, QEvent::Type type,
              const QPoint &pos, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = {})
    {
        QMouseEvent event(type, pos, button, button, modifiers);
        return delegate->editorEvent(&event, &model, option(), index);
    }

    TreeItemData root;
    std::vector<std::unique_ptr<TreeItemData>> items;
    ScanDataModel model;
};
