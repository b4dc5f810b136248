// What most files include, read once where QUARVO_PRECOMPILE is on. Files name what they need
// nevertheless: the other builds go without this one. Nothing here brings windows.h along.

#include <QAbstractItemView>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QThread>
#include <QTranslator>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>
