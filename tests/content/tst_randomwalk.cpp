// Real events at random against a plain model of what they should do. QUARVO_WALK_SEED repeats a
// walk, QUARVO_WALK_EVENTS makes it shorter or longer.
#include "content/scantableview.h"
#include "content/sdcardcontentdatawidget.h"
#include "content/thumbnailgrid.h"
#include "model/headerviewsorttype.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "popups/rightmenudialog.h"
#include "support/recordtree.h"
#include "walkhand.h"

#include <QLoggingCategory>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <random>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int DefaultEvents = 10000;
#else
constexpr int DefaultEvents = 100000;
#endif
constexpr unsigned DefaultSeed = 20261121;
constexpr int MostItems = 90;
constexpr ulong Pause = 1000;  // between gestures: no click belongs to the one before
constexpr int PollEvery = 200; // steps between runs of the event loop, which paint

unsigned fromEnvironment(const char *name, unsigned fallback)
{
    bool isNumber = false;
    const unsigned value = qEnvironmentVariable(name).toUInt(&isNumber);
    return isNumber ? value : fallback;
}

} // namespace

/// One walk, over a content area of its own.
class Walk : public QObject
{
public:
    explicit Walk(unsigned seed);
    /// Until so many events have been sent. What is wrong, if anything is.
    QString run(int events);

private:
    using Id = WalkHand::Id;

    // the world
    void newTree();
    void grow();
    void kill();
    void handOver();
    void changeSort();
    void switchView();
    std::vector<Id> shownIds() const;
    std::vector<Id> treeInOrder() const;
    /// What is shown, after a look whether it is all that there is, in the chosen order.
    std::vector<Id> listed();

    // the hand
    void click();
    void rightClick();
    void doubleClick();
    void key();
    void typeAhead();
    void wheel();
    void checkAll();
    void startBand();
    void moveBand();
    void followBand();
    void endBand();

    // what it sees
    ViewPlace &place() const;
    QAbstractItemView &view() const { return *place().itemView(); }
    bool isGrid() const { return m_mode == 0; }
    TreeItemData *recordAt(const QModelIndex &index) const;
    QModelIndex indexOfRow(int row) const { return view().model()->index(row, 0); }
    QModelIndex indexOf(Id id) const { return indexOfRow(m_hand.rowOf(id)); }
    QRect rectOf(Id id) const { return view().visualRect(indexOf(id)); }
    /// Invalid for the dead.
    QRect rectOfRow(int row) const { return view().visualRect(indexOfRow(row)); }
    QPoint origin() const { return place().contentPosition({}); } // of the content in the viewport
    Id idAt(const QPoint &pos) const;
    Id visibleItem();
    QPoint blankSpot();
    QPoint spotOn(Id id, bool checkBox) const;
    Id keyTarget(int key) const;
    std::set<Id> touchedByBand() const;

    void send(QEvent::Type type, const QPoint &pos, Qt::MouseButton button,
              Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = {});
    void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text = {});
    void pressed(Id id, Qt::KeyboardModifiers modifiers, bool wasSelected);
    Qt::KeyboardModifiers randomModifiers();
    int random(int below) { return int(m_random() % unsigned(below)); }
    bool chance(int percent) { return random(100) < percent; }

    void step();
    QString disagreement();
    void say(const QString &what) { m_log.append(what); }

    const unsigned m_seed;
    std::mt19937 m_random;
    std::unique_ptr<RecordTree> m_tree;
    std::unique_ptr<SDCardContentDataWidget> m_widget;
    ThumbnailGrid *m_grid = nullptr;
    ScanTableView *m_table = nullptr;
    WalkHand m_hand;
    int m_mode = 0;
    int m_sort = NoSort;
    int m_treeKey = 0;
    int m_sent = 0;
    ulong m_clock = 1;
    int m_opens = 0;
    int m_checkSignals = 0;
    int m_opensExpected = 0;
    int m_checkSignalsExpected = 0;
    QString m_typed;
    QStringList m_log;
    QString m_complaint;

    bool m_banding = false;
    bool m_bandShown = false;
    QPoint m_bandOrigin; // in the content
    QPoint m_bandEnd;
    Id m_bandItem = WalkHand::Nothing;
    Qt::KeyboardModifiers m_bandModifiers;
    bool m_bandAdds = true;
    Id m_held = WalkHand::Nothing;
    int m_heldScroll = -1;
};

// The world --------------------------------------------------------------------------------------

void Walk::newTree()
{
    say(QStringLiteral("new tree"));
    auto old = std::move(m_tree); // which outlives the change: hosts do it so
    m_tree = std::make_unique<RecordTree>();
    m_tree->root.secondaryId = ++m_treeKey;
    m_hand = WalkHand();
    m_banding = m_bandShown = false;
    m_held = WalkHand::Nothing;
    m_widget->reset();
    m_sort = NoSort;
    grow();
    m_hand.go(m_hand.order.front());
    m_hand.only({});
}

void Walk::grow()
{
    const int count = 1 + random(m_tree->root.childFiles.size() < 60 ? 30 : 6);
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("%1%2%3.jpg")
                                 .arg(QChar('a' + random(3)))
                                 .arg(QChar('a' + random(3)))
                                 .arg(random(100000));
        if (chance(4)) // holds something, but it has not come yet: opening stays here
            m_tree->addFolder(name)->itemCount = 3;
        else
            m_tree->addFile(name)->fileSize = random(5000);
    }
    handOver();
}

void Walk::kill()
{
    if (m_tree->root.childFiles.size() < 8)
        return;
    const int row = random(m_tree->root.childFiles.size());
    TreeItemData *victim = m_tree->root.childFiles.takeAt(row);
    m_hand.dead.insert(victim->fileId);
    say(QStringLiteral("dies: %1").arg(victim->fileId));
    m_tree->root.itemCount--;
    m_tree->kill(victim);
}

void Walk::handOver()
{
    say(QStringLiteral("results"));
    const QPoint before = origin();
    const int scroll = view().verticalScrollBar()->value();
    const bool known = !m_hand.order.empty();
    // the item under the eye: the chosen current one, else the one at the top
    Id held = m_hand.current;
    const bool holdsCurrent = known && m_hand.isAlive(held) && m_hand.selected.count(held)
        && rectOf(held).intersects(view().viewport()->rect());
    if (!holdsCurrent) {
        const bool again = scroll == m_heldScroll && m_hand.isAlive(m_held);
        held = again || !known ? m_held
            : recordAt(indexOfRow(place().visibleRows().first))
            ? recordAt(indexOfRow(place().visibleRows().first))->fileId
            : Id(WalkHand::Nothing);
    }
    const bool checksEye = known && m_hand.isAlive(held) && (holdsCurrent || scroll > 0);
    const int y = checksEye ? rectOf(held).top() : 0;
    const bool bandOnItem = m_banding && m_hand.isAlive(m_bandItem);
    const QPoint bandItem = bandOnItem ? place().contentPosition(indexOf(m_bandItem)) : QPoint();

    m_widget->updateData(&m_tree->root, QString());
    m_hand.results(listed());

    const QScrollBar *bar = view().verticalScrollBar();
    const bool atEnd = bar->value() == bar->minimum() || bar->value() == bar->maximum();
    if (checksEye && !atEnd && rectOf(held).top() != y)
        m_complaint =
            QStringLiteral("item %1 jumped from %2 to %3").arg(held).arg(y).arg(rectOf(held).top());
    m_held = holdsCurrent ? Id(WalkHand::Nothing) : held;
    m_heldScroll = bar->value();
    if (bandOnItem)
        m_bandOrigin += place().contentPosition(indexOf(m_bandItem)) - bandItem;
    else if (m_banding)
        m_bandOrigin += origin() - before;
}

void Walk::changeSort()
{
    if (!m_hand.dead.empty())
        handOver();
    const int type = 1 + random(8);
    say(QStringLiteral("sort %1").arg(type));
    emit m_widget->findChild<ScanTableHeader *>()->signalSortClicked(HeaderViewSortType(type));
    m_sort = type;
    m_hand.sorted(listed());
}

void Walk::switchView()
{
    if (!m_hand.dead.empty())
        handOver();
    const int mode = random(3);
    say(QStringLiteral("mode %1").arg(mode));
    if ((mode == 0) != isGrid()) {
        m_banding = m_bandShown = false;
        m_heldScroll = -1;
        m_held = WalkHand::Nothing;
        m_typed.clear();
    }
    m_mode = mode;
    m_widget->setViewMode(mode);
}

std::vector<WalkHand::Id> Walk::shownIds() const
{
    std::vector<Id> ids;
    for (int row = 0; row < view().model()->rowCount(); ++row) {
        const QVariant id = indexOfRow(row).data(FileIdRole);
        ids.push_back(id.isValid() ? id.toLongLong() : Id(WalkHand::Nothing));
    }
    return ids;
}

std::vector<WalkHand::Id> Walk::treeInOrder() const
{
    QList<TreeItemData *> items = m_tree->root.childFolders + m_tree->root.childFiles;
    const auto comesBefore = [this](const TreeItemData *a, const TreeItemData *b) {
        const bool descending = m_sort % 2 == 0;
        const TreeItemData *first = descending ? b : a;
        const TreeItemData *second = descending ? a : b;
        switch (m_sort) {
        case NameAscending:
        case NameDescending:
            return first->name < second->name; // small letters all
        case SizeAscending:
        case SizeDescending:
            return first->fileSize < second->fileSize;
        case TypeAscending:
        case TypeDescending:
            return first->extension < second->extension;
        case DateAscending:
        case DateDescending:
            return first->modifiedTime < second->modifiedTime;
        default:
            return false;
        }
    };
    std::stable_sort(items.begin(), items.end(), comesBefore);
    std::vector<Id> ids;
    for (const TreeItemData *item : qAsConst(items))
        ids.push_back(item->fileId);
    return ids;
}

std::vector<WalkHand::Id> Walk::listed()
{
    const std::vector<Id> shown = shownIds();
    if (shown != treeInOrder())
        m_complaint =
            QStringLiteral("not what the tree holds, or out of order, sort %1").arg(m_sort);
    return shown;
}

// What it sees -----------------------------------------------------------------------------------

ViewPlace &Walk::place() const
{
    if (isGrid())
        return *m_grid;
    return *m_table;
}

TreeItemData *Walk::recordAt(const QModelIndex &index) const
{
    return static_cast<ScanDataModel *>(m_grid->model())->itemAt(index);
}

WalkHand::Id Walk::idAt(const QPoint &pos) const
{
    for (int row = 0; row < int(m_hand.order.size()); ++row) {
        QRect rect = rectOfRow(row);
        if (!isGrid()) // all columns
            rect.setRight(view().viewport()->width());
        if (rect.isValid() && rect.contains(pos))
            return m_hand.order[size_t(row)];
    }
    return WalkHand::Nothing;
}

WalkHand::Id Walk::visibleItem()
{
    std::vector<Id> seen;
    const QRect area = view().viewport()->rect();
    for (int row = 0; row < int(m_hand.order.size()); ++row) {
        const QRect rect = rectOfRow(row);
        if (rect.isValid() && area.top() <= rect.top() && rect.bottom() <= area.bottom())
            seen.push_back(m_hand.order[size_t(row)]);
    }
    return seen.empty() ? Id(WalkHand::Nothing) : seen[size_t(random(int(seen.size())))];
}

QPoint Walk::spotOn(Id id, bool checkBox) const
{
    if (isGrid()) {
        const QRect card = rectOf(id);
        return checkBox ? card.topLeft() + QPoint(16, 16)
                        : QPoint(card.center().x(), card.bottom() - 8);
    }
    if (checkBox)
        return rectOf(id).topLeft() + QPoint(16, 20);
    const QRect size = m_table->visualRect(indexOf(id).siblingAtColumn(ScanDataModel::SizeColumn));
    return {size.left() + 45, size.center().y()};
}

QPoint Walk::blankSpot()
{
    const QRect area = view().viewport()->rect();
    for (int attempt = 0; attempt < 8; ++attempt) {
        const QPoint pos(random(area.width()), random(area.height()));
        if (idAt(pos) == WalkHand::Nothing && !view().indexAt(pos).isValid())
            return pos;
    }
    return {-1, -1};
}

WalkHand::Id Walk::keyTarget(int key) const
{
    const int rows = int(m_hand.order.size());
    const int from = m_hand.rowOf(m_hand.current);
    // how many stand side by side, and how far apart lines are, from what is seen
    std::set<int> lefts;
    std::set<int> tops;
    int cellHeight = 1;
    for (int row = 0; row < rows; ++row) {
        const QRect rect = rectOfRow(row);
        if (!rect.isValid())
            continue;
        lefts.insert(rect.left());
        tops.insert(rect.top());
        cellHeight = rect.height();
    }
    const int columns = int(lefts.size());
    int pitch = tops.size() < 2 ? cellHeight : *tops.rbegin() - *tops.begin();
    for (auto top = tops.begin(); top != tops.end() && std::next(top) != tops.end(); ++top)
        pitch = qMin(pitch, *std::next(top) - *top); // more where a line is dead
    const int height = view().viewport()->height();
    const int page = qMax(1, isGrid() ? (height - cellHeight) / pitch : height / pitch - 1);
    const int lines = (rows - 1) / columns + 1;
    const auto away = [&](int by) {
        const int line = qBound(0, from / columns + by, lines - 1);
        return qMin(line * columns + from % columns, rows - 1);
    };
    int to = from;
    int onward = 1;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (!isGrid())
            return m_hand.current;
        onward = key == Qt::Key_Left ? -1 : 1;
        to = qBound(0, from + onward, rows - 1);
        break;
    case Qt::Key_Up:
        onward = -1;
        to = away(-1);
        break;
    case Qt::Key_Down:
        to = away(1);
        break;
    case Qt::Key_PageUp:
        onward = -1;
        to = away(-page);
        break;
    case Qt::Key_PageDown:
        to = away(page);
        break;
    case Qt::Key_Home:
        to = 0;
        break;
    case Qt::Key_End:
        onward = -1;
        to = rows - 1;
        break;
    default:
        break;
    }
    if (to == from)
        return m_hand.current;
    while (to >= 0 && to < rows && !m_hand.isAlive(m_hand.order[size_t(to)]))
        to += onward;
    return to < 0 || to >= rows ? m_hand.current : m_hand.order[size_t(to)];
}

// The hand ---------------------------------------------------------------------------------------

void Walk::send(QEvent::Type type, const QPoint &pos, Qt::MouseButton button,
                Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QWidget *viewport = view().viewport();
    QMouseEvent event(type, pos, viewport->mapToGlobal(pos), button, buttons, modifiers);
    event.setTimestamp(++m_clock);
    QApplication::sendEvent(viewport, &event);
    ++m_sent;
}

void Walk::sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&view(), &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&view(), &release);
    ++m_sent;
}

Qt::KeyboardModifiers Walk::randomModifiers()
{
    switch (random(4)) {
    case 0:
        return Qt::ShiftModifier;
    case 1:
        return Qt::ControlModifier;
    default:
        return Qt::NoModifier;
    }
}

void Walk::pressed(Id id, Qt::KeyboardModifiers modifiers, bool wasSelected)
{
    if (modifiers & Qt::ShiftModifier) {
        m_hand.rangeTo(id);
    } else {
        if (modifiers & Qt::ControlModifier)
            m_hand.flip(id);
        else if (!wasSelected)
            m_hand.only({id});
        m_hand.go(id);
    }
}

void Walk::click()
{
    m_clock += Pause;
    if (chance(12)) {
        const QPoint blank = blankSpot();
        if (blank.x() < 0)
            return;
        const Qt::KeyboardModifiers modifiers = randomModifiers();
        say(QStringLiteral("click on nothing, modifiers %1").arg(int(modifiers)));
        send(QEvent::MouseButtonPress, blank, Qt::LeftButton, Qt::LeftButton, modifiers);
        send(QEvent::MouseButtonRelease, blank, Qt::LeftButton, Qt::NoButton, modifiers);
        m_hand.settle();
        if (modifiers == Qt::NoModifier)
            m_hand.only({});
        return;
    }
    const Id id = visibleItem();
    if (id == WalkHand::Nothing)
        return;
    const bool onCheck = chance(25);
    const Qt::KeyboardModifiers modifiers = randomModifiers();
    const QPoint pos = spotOn(id, onCheck);
    const bool wasSelected = m_hand.selected.count(id);
    say(QStringLiteral("click %1 %2 modifiers %3")
            .arg(id)
            .arg(onCheck ? "box" : "")
            .arg(int(modifiers)));
    send(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton, modifiers);
    if (onCheck) {
        m_hand.clickCheck(id);
        ++m_checkSignalsExpected;
    }
    pressed(id, modifiers, wasSelected);
    const bool streamed = chance(15);
    if (streamed)
        grow();
    // what has come may have pushed the item away from under the mouse
    const bool still = !streamed || idAt(pos) == id;
    send(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton, modifiers);
    if (modifiers == Qt::NoModifier && still)
        m_hand.only({id});
}

void Walk::rightClick()
{
    const Id id = visibleItem();
    if (id == WalkHand::Nothing)
        return;
    m_clock += Pause;
    say(QStringLiteral("right click %1").arg(id));
    const QPoint pos = spotOn(id, false);
    send(QEvent::MouseButtonPress, pos, Qt::RightButton, Qt::RightButton);
    send(QEvent::MouseButtonRelease, pos, Qt::RightButton, Qt::NoButton);
    if (m_hand.selected.count(id) == 0)
        m_hand.only({id});
    m_hand.go(id);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    if (auto *menu = m_widget->findChild<RightMenuDialog *>())
        menu->close();
}

void Walk::doubleClick()
{
    const Id id = visibleItem();
    if (id == WalkHand::Nothing)
        return;
    m_clock += Pause;
    say(QStringLiteral("double click %1").arg(id));
    const QPoint pos = spotOn(id, false);
    send(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
    m_hand.only({id});
    m_hand.go(id);
    if (chance(50))
        grow();
    if (idAt(pos) != id)
        return;
    for (int more = chance(30) ? 2 : 0; more >= 0; --more) { // impatient ones click on
        send(QEvent::MouseButtonDblClick, pos, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
        if (more > 0) {
            send(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton);
            send(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
        }
    }
    ++m_opensExpected;
}

void Walk::key()
{
    static const std::vector<int> keys{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,
                                       Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                       Qt::Key_Down, Qt::Key_Home,   Qt::Key_End};
    if (chance(30)) {
        switch (random(4)) {
        case 0:
            say(QStringLiteral("Ctrl+A"));
            sendKey(Qt::Key_A, Qt::ControlModifier);
            return m_hand.all();
        case 1:
            say(QStringLiteral("Escape"));
            sendKey(Qt::Key_Escape, {});
            m_typed.clear();
            if (!m_hand.selected.empty())
                m_hand.only({});
            return;
        case 2: {
            say(QStringLiteral("Space"));
            const std::vector<Id> targets = m_hand.targets();
            sendKey(Qt::Key_Space, {}, QStringLiteral(" "));
            m_hand.toggleChecks(targets);
            m_checkSignalsExpected += int(targets.size());
            return;
        }
        default:
            say(QStringLiteral("Enter"));
            sendKey(Qt::Key_Return, {});
            m_opensExpected += m_hand.isAlive(m_hand.current) ? 1 : 0;
            return;
        }
    }
    const int key = keys[size_t(random(int(keys.size())))];
    const Qt::KeyboardModifiers modifiers = chance(8)
        ? Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier)
        : randomModifiers();
    const Id to = keyTarget(key);
    say(QStringLiteral("key %1 modifiers %2 from %3 to %4")
            .arg(QKeySequence(key).toString())
            .arg(int(modifiers))
            .arg(m_hand.current)
            .arg(to));
    sendKey(key, modifiers);
    if (to == m_hand.current)
        return;
    if (modifiers & Qt::ShiftModifier)
        return m_hand.rangeTo(to);
    if (modifiers == Qt::NoModifier)
        m_hand.only({to});
    m_hand.go(to);
}

void Walk::typeAhead()
{
    const QChar letter('a' + random(3));
    const bool anew = m_typed.isEmpty() || chance(40);
    if (anew) { // Escape ends the word before
        sendKey(Qt::Key_Escape, {});
        m_hand.only({});
    }
    m_typed = anew ? QString(letter) : m_typed + letter;
    say(QStringLiteral("type %1 of %2").arg(letter).arg(m_typed));
    const bool sameLetter = m_typed.count(letter) == m_typed.size();
    const int rows = int(m_hand.order.size());
    const auto next = [&](const QString &wanted) {
        for (int i = sameLetter ? 1 : 0; i < rows + (sameLetter ? 1 : 0); ++i) {
            const Id id = m_hand.order[size_t((m_hand.rowOf(m_hand.current) + i) % rows)];
            const TreeItemData *record = m_hand.isAlive(id) ? recordAt(indexOf(id)) : nullptr;
            if (record && record->name.startsWith(wanted))
                return id;
        }
        return Id(WalkHand::Nothing);
    };
    Id found = next(m_typed);
    if (found == WalkHand::Nothing && sameLetter)
        found = next(QString(letter));
    sendKey(letter.toUpper().unicode(), {}, letter);
    if (found == WalkHand::Nothing)
        return;
    m_hand.only({found});
    m_hand.go(found);
}

void Walk::wheel()
{
    say(QStringLiteral("wheel"));
    const QPointF pos = view().viewport()->rect().center();
    QWheelEvent event(pos, view().viewport()->mapToGlobal(pos.toPoint()), {},
                      QPoint(0, chance(50) ? 120 : -240), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view().viewport(), &event);
    ++m_sent;
}

void Walk::checkAll()
{
    auto *button = m_widget->findChild<QPushButton *>(QStringLiteral("allCheckButton"));
    const int state = m_tree->root.checkState == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    say(QStringLiteral("check all: %1").arg(state));
    QTest::mouseClick(button, Qt::LeftButton);
    ++m_sent;
    m_hand.checkAll(state);
    ++m_checkSignalsExpected;
}

// Rubber band ------------------------------------------------------------------------------------

void Walk::startBand()
{
    const QPoint blank = chance(50) ? blankSpot() : QPoint(-1, -1);
    const Id id = blank.x() < 0 ? visibleItem() : Id(WalkHand::Nothing);
    if (blank.x() < 0 && id == WalkHand::Nothing)
        return;
    const QPoint pos = blank.x() < 0 ? spotOn(id, false) : blank;
    m_clock += Pause;
    m_bandModifiers = randomModifiers();
    m_bandItem = id;
    m_bandEnd = pos;
    m_bandOrigin = pos + origin();
    m_banding = true;
    say(QStringLiteral("band from %1, %2 modifiers %3")
            .arg(pos.x())
            .arg(pos.y())
            .arg(int(m_bandModifiers)));
    const bool wasSelected = m_hand.selected.count(id);
    send(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton, m_bandModifiers);
    if (id != WalkHand::Nothing) {
        pressed(id, m_bandModifiers, wasSelected);
        // with Ctrl: on from a card that the press has unselected, the band takes away
        m_bandAdds = m_hand.selected.count(id);
        return;
    }
    m_hand.settle();
}

std::set<WalkHand::Id> Walk::touchedByBand() const
{
    const QRect area = view().viewport()->rect();
    const QPoint from = m_bandOrigin - origin();
    const QPoint to(qBound(area.left(), m_bandEnd.x(), area.right()),
                    qBound(area.top(), m_bandEnd.y(), area.bottom()));
    const QRect band(QPoint(qMin(from.x(), to.x()), qMin(from.y(), to.y())),
                     QPoint(qMax(from.x(), to.x()), qMax(from.y(), to.y())));
    std::set<Id> touched;
    for (int row = 0; row < int(m_hand.order.size()); ++row) {
        const QRect rect = rectOfRow(row);
        if (!rect.isValid())
            continue;
        const bool touches = isGrid() ? rect.intersects(band)
                                      : rect.top() <= band.bottom() && rect.bottom() >= band.top();
        if (touches)
            touched.insert(m_hand.order[size_t(row)]);
    }
    return touched;
}

void Walk::moveBand()
{
    const QRect area = view().viewport()->rect();
    m_bandEnd = chance(20)
        ? m_bandEnd + QPoint(random(7) - 3, random(7) - 3)
        : QPoint(random(area.width() + 80) - 40, random(area.height() + 80) - 40);
    say(QStringLiteral("to %1, %2").arg(m_bandEnd.x()).arg(m_bandEnd.y()));
    send(QEvent::MouseMove, m_bandEnd, Qt::NoButton, Qt::LeftButton, m_bandModifiers);
    followBand();
}

void Walk::followBand()
{
    const QRect area = view().viewport()->rect();
    if (!m_bandShown) {
        const int far = isGrid() ? QApplication::startDragDistance() : 5;
        if ((m_bandEnd + origin() - m_bandOrigin).manhattanLength() < far)
            return;
        m_bandShown = true;
        m_hand.beforeBand = m_hand.selected;
    }
    const std::set<Id> touched = touchedByBand();
    std::set<Id> wanted = m_hand.beforeBand;
    if (isGrid() && m_bandModifiers == Qt::NoModifier) {
        wanted = touched;
    } else if (isGrid() && m_bandModifiers == Qt::ControlModifier) {
        const bool fromBlank = m_bandItem == WalkHand::Nothing;
        for (Id id : touched) {
            const bool in = fromBlank ? m_hand.beforeBand.count(id) == 0 : m_bandAdds;
            if (in)
                wanted.insert(id);
            else
                wanted.erase(id);
        }
    } else {
        wanted.insert(touched.begin(), touched.end());
    }
    m_hand.only(wanted);
    const Id under = idAt(QPoint(qBound(area.left(), m_bandEnd.x(), area.right()),
                                 qBound(area.top(), m_bandEnd.y(), area.bottom())));
    if (under != WalkHand::Nothing)
        m_hand.current = under;
}

void Walk::endBand()
{
    if (m_bandShown && chance(20)) {
        say(QStringLiteral("Escape from the band"));
        sendKey(Qt::Key_Escape, {});
        m_typed.clear();
        m_hand.only(m_hand.beforeBand);
        m_bandShown = m_banding = false;
        send(QEvent::MouseButtonRelease, m_bandEnd, Qt::LeftButton, Qt::NoButton, m_bandModifiers);
        return;
    }
    const QRect area = view().viewport()->rect();
    const bool wasShown = m_bandShown;
    if (wasShown && !area.contains(m_bandEnd))
        moveBand();
    const QPoint pos = wasShown && area.contains(m_bandEnd) ? m_bandEnd : QPoint(-100, 100000);
    if (wasShown && !area.contains(pos))
        return; // another try later
    say(QStringLiteral("release"));
    if (wasShown)
        followBand();
    else if (m_bandItem == WalkHand::Nothing && m_bandModifiers == Qt::NoModifier)
        m_hand.only({});
    m_banding = m_bandShown = false;
    send(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton, m_bandModifiers);
}

// ------------------------------------------------------------------------------------------------

void Walk::step()
{
    if (m_banding) {
        switch (random(10)) {
        case 0:
            return grow();
        case 1:
            return wheel();
        case 2:
            return chance(20) ? switchView() : kill();
        case 3:
        case 4:
            return endBand();
        default:
            return moveBand();
        }
    }
    const int what = random(100);
    if (what < 32)
        click();
    else if (what < 62)
        key();
    else if (what < 70)
        startBand();
    else if (what < 78)
        wheel();
    else if (what < 84)
        grow();
    else if (what < 88)
        typeAhead();
    else if (what < 91)
        doubleClick();
    else if (what < 94)
        kill();
    else if (what < 96)
        changeSort();
    else if (what < 98)
        switchView();
    else if (what < 99)
        checkAll();
    else
        rightClick();
    if (int(m_hand.order.size()) > MostItems)
        newTree();
}

QString Walk::disagreement()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    if (!m_complaint.isEmpty())
        return m_complaint;
    const auto text = [](const std::set<Id> &ids) {
        QStringList list;
        for (Id id : ids)
            list.append(QString::number(id));
        return list.join(QLatin1Char(' '));
    };
    const std::set<Id> expected = m_hand.aliveSelected();
    std::set<Id> actual;
    for (int row = 0; row < int(m_hand.order.size()); ++row) {
        const QModelIndex index = indexOfRow(row);
        if (index.isValid() && view().selectionModel()->isSelected(index))
            actual.insert(m_hand.order[size_t(row)]);
    }
    if (actual != expected)
        return QStringLiteral("selected %1 instead of %2").arg(text(actual), text(expected));
    std::set<Id> told;
    const QList<TreeItemData *> items = m_widget->selectedItems();
    for (const TreeItemData *item : items)
        told.insert(item->fileId);
    if (told != expected)
        return QStringLiteral("told %1 instead of %2").arg(text(told), text(expected));
    const TreeItemData *current = recordAt(view().currentIndex());
    if (m_hand.isAlive(m_hand.current) && (!current || current->fileId != m_hand.current))
        return QStringLiteral("current %1 instead of %2")
            .arg(current ? current->fileId : -1)
            .arg(m_hand.current);
    const TreeItemData *anchor = recordAt(place().selectionAnchor());
    if (m_hand.isAlive(m_hand.anchor) && (!anchor || anchor->fileId != m_hand.anchor))
        return QStringLiteral("anchor %1 instead of %2")
            .arg(anchor ? anchor->fileId : -1)
            .arg(m_hand.anchor);
    for (const auto *list : {&m_tree->root.childFiles, &m_tree->root.childFolders}) {
        for (const TreeItemData *item : *list) {
            if (item->checkState != m_hand.checks[item->fileId])
                return QStringLiteral("check of %1 is %2").arg(item->fileId).arg(item->checkState);
        }
    }
    if (m_opens != m_opensExpected)
        return QStringLiteral("opened %1 instead of %2").arg(m_opens).arg(m_opensExpected);
    if (m_checkSignals != m_checkSignalsExpected)
        return QStringLiteral("%1 checks announced instead of %2")
            .arg(m_checkSignals)
            .arg(m_checkSignalsExpected);
    return {};
}

Walk::Walk(unsigned seed)
    : m_seed(seed)
    , m_random(seed)
    , m_widget(std::make_unique<SDCardContentDataWidget>(1))
    , m_grid(m_widget->findChild<ThumbnailGrid *>())
    , m_table(m_widget->findChild<ScanTableView *>())
{
    connect(m_widget.get(), &SDCardContentDataWidget::signalDoubleClicked, this,
            [this] { ++m_opens; });
    connect(m_widget.get(), &SDCardContentDataWidget::signalItemDataCheck, this,
            [this] { ++m_checkSignals; });
    m_widget->resize(700, 520);
    m_widget->show();
}

QString Walk::run(int events)
{
    if (!QTest::qWaitForWindowExposed(m_widget.get()))
        return QStringLiteral("no window");
    newTree();
    QCoreApplication::processEvents();

    for (int steps = 0; m_sent < events; ++steps) {
        step();
        const QString wrong = disagreement();
        if (!wrong.isEmpty()) {
            const QStringList last = m_log.mid(qMax(0, m_log.size() - 14));
            return QStringLiteral("seed %1, event %2, mode %3: %4\n  %5")
                .arg(m_seed)
                .arg(m_sent)
                .arg(m_mode)
                .arg(wrong, last.join(QLatin1String("\n  ")));
        }
        if (m_log.size() > 100)
            m_log = m_log.mid(80);
        if (steps % PollEvery == 0 && !m_banding)
            QCoreApplication::processEvents();
    }
    return {};
}

class TestRandomWalk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void walk();
};

void TestRandomWalk::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QApplication::setKeyboardInputInterval(3600 * 1000); // how fast a walk types is no matter here
    qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
}

void TestRandomWalk::walk()
{
    Walk walk(fromEnvironment("QUARVO_WALK_SEED", DefaultSeed));
    const QString wrong = walk.run(int(fromEnvironment("QUARVO_WALK_EVENTS", DefaultEvents)));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

QTEST_MAIN(TestRandomWalk)
#include "tst_randomwalk.moc"
