#include "hand.h"
#include "proofs.h"
#include "report.h"
#include "stage.h"

#include <QApplication>
#include <QTemporaryDir>

namespace {

const QString s_last = QStringLiteral("IMG_0060.JPG");

/// Of the view's model.
enum Role {
    PathTextRole = Qt::UserRole,
    ModifiedTimeRole = PathTextRole + 2,
    KindRole,
    FileIdRole,
    SecondaryIdRole,
    SizeRole
};

/// Whether all of some facts hold; the first that does not is told.
class Facts
{
public:
    Facts &operator()(bool holds, const char *fact)
    {
        if (!holds && wrong.isEmpty())
            wrong = QLatin1String(fact);
        return *this;
    }

    QString wrong;
};

bool isOn(const Side &side, const char *page)
{
    return side.page()->objectName() == QLatin1String(page);
}

bool isLight(const Side &side)
{
    return side.background().lightness() > 200;
}

int themeProperty()
{
    return qApp->property("ThemeType").toInt();
}

/// The colour in the middle of the picture on the card of \a item.
QColor cardColour(const Side &side, const TreeItemData *item)
{
    const QImage card = side.pictureOf(side.index(item->name));
    return card.pixelColor(card.width() / 2, card.height() / 3);
}

void updateTheme(Stage &s, Facts &fact)
{
    s.view->updateTheme(DarkTheme);
    fact(themeProperty() == DarkTheme && !isLight(s.scan), "the scan side turns dark");
    s.bring(s.search);
    fact(!isLight(s.search), "the search side turns dark");
    s.view->updateTheme(LightTheme);
    fact(themeProperty() == LightTheme && isLight(s.search), "it turns light again");
}

void getScanContentFrame(Stage &s, Facts &fact)
{
    QFrame *frame = s.view->getScanContentFrame();
    fact(frame->objectName() == QLatin1String("sdcardScanContentInnerFrame"),
         "its name")(frame == s.scan.frame() && frame->isVisible(), "the same frame again");
}

void getSearchResultFrame(Stage &s, Facts &fact)
{
    QFrame *frame = s.view->getSearchResultFrame();
    s.bring(s.search);
    fact(frame->objectName() == QLatin1String("sdcardScanSearchResultInnerFrame"),
         "its name")(frame == s.search.frame() && frame->isVisible(), "the same frame again");
}

void setViewMode(Stage &s, Facts &fact)
{
    for (const Side &side : {s.scan, s.search}) {
        s.view->setViewMode(View::ListWithDetailView);
        fact(side.view() == side.table() && side.shows("itemDetailframe"), "a list with the pane");
        s.view->setViewMode(View::ListView);
        fact(side.view() == side.table() && !side.shows("itemDetailframe"), "a list without it");
        s.view->setViewMode(View::GridView);
        s.view->setViewMode(17);
        fact(side.view() == side.grid() && !side.table()->isVisibleTo(side.frame()), "the grid");
    }
}

void setScanState(Stage &s, Facts &fact)
{
    s.view->setScanState(View::ScanStarted);
    const auto frame = [&] { return s.scan.child("animationframe")->grab().toImage(); };
    const QImage first = frame();
    fact(isOn(s.scan, "scanningpage"), "the scanning page")(
        Report::happens([&] { return frame() != first; }), "its animation moves");
    s.view->setScanState(View::ScanAnimationStopped);
    const auto isStill = [&] {
        const QImage before = frame();
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        return frame() == before;
    };
    fact(Report::happens(isStill), "it stops");
    s.view->updateScanData(&s.card.nothing);
    s.view->setScanState(View::ScanFinished);
    fact(isOn(s.scan, "nodatapage"), "a finished scan without items");
}

void updateScanData(Stage &s, Facts &fact)
{
    fact(isOn(s.scan, "scandatapage") && s.scan.rows() == s.card.root.itemCount,
         "the records")(s.scan.names().constFirst() == s.card.folder->name, "folders first");
    const TreeItemData *photo = s.card.file(s_last);
    const auto told = [&](int role) { return s.scan.index(s_last).data(role); };
    fact(told(PathTextRole).toString().contains(photo->path)
             && told(ModifiedTimeRole) == photo->modifiedTime && told(KindRole) == photo->kind
             && told(FileIdRole) == photo->fileId && told(SecondaryIdRole) == photo->secondaryId
             && told(SizeRole) == photo->fileSize,
         "read where the host wrote");
    s.view->updateScanData(s.card.folder);
    fact(s.scan.rows() == 2 && s.search.rows() == s.card.root.itemCount, "another root");
    s.view->updateScanData(nullptr);
    fact(s.scan.rows() == 2, "no root changes nothing");
}

void updateSearchData(Stage &s, Facts &fact)
{
    s.bring(s.search);
    s.view->updateSearchData(s.card.folder, QStringLiteral("0901"));
    const QImage marked = s.search.picture();
    s.view->updateSearchData(s.card.folder, QStringLiteral("nowhere"));
    fact(s.search.rows() == 2 && s.scan.rows() == s.card.root.itemCount,
         "its own records")(s.search.picture() != marked, "the keyword is marked");
}

void updateSearchDataNoKeyword(Stage &s, Facts &fact)
{
    s.bring(s.search);
    s.view->updateSearchData(s.card.folder, QStringLiteral("0901"));
    const QImage marked = s.search.picture();
    s.view->updateSearchDataNoKeyword(s.card.folder);
    fact(s.search.rows() == 2 && s.search.picture() != marked, "records without marks");
}

void refreshSearchCheckAllState(Stage &s, Facts &fact)
{
    s.view->updateSearchData(s.card.folder, QStringLiteral("IMG"));
    const auto stateFor = [&](int one, int other) {
        s.card.folder->childFiles.at(0)->checkState = one;
        s.card.folder->childFiles.at(1)->checkState = other;
        s.view->refreshSearchCheckAllState(0);
        return s.search.selectAll();
    };
    fact(stateFor(2, 2) == 2, "all")(stateFor(2, 0) == 1, "some")(stateFor(0, 0) == 0, "none");
}

void refreshed(Stage &s, Facts &fact, const Side &side, const Side &other, void (View::*refresh)())
{
    s.bring(side);
    const QImage before = side.pictureOf(side.index(s.card.contact->name));
    s.card.root.checkState = s.card.contact->checkState = Qt::Checked;
    (s.view->*refresh)();
    fact(side.selectAll() == 2 && other.selectAll() == 0, "select-all of this side")(
        side.pictureOf(side.index(s.card.contact->name)) != before, "the item's box");
}

void refreshScanCheckState(Stage &s, Facts &fact)
{
    refreshed(s, fact, s.scan, s.search, &View::refreshScanCheckState);
}

void refreshSearchCheckState(Stage &s, Facts &fact)
{
    refreshed(s, fact, s.search, s.scan, &View::refreshSearchCheckState);
}

void clearData(Stage &s, Facts &fact)
{
    s.view->clearData(3);
    fact(s.scan.rows() > 0 && s.search.rows() > 0, "no such side");
    s.view->clearData(View::SearchSide);
    fact(s.scan.rows() > 0 && s.search.rows() == 0, "the search side");
    s.view->updateSearchDataNoKeyword(&s.card.root);
    s.view->clearData(View::ScanSide);
    fact(s.scan.rows() == 0 && s.search.rows() > 0, "the scan side");
    s.view->clearData(View::BothSides);
    fact(s.search.rows() == 0, "both");
}

void located(Stage &s, Facts &fact, void (View::*locate)(qint64), qint64 id)
{
    const auto visible = [&] {
        return s.scan.grid()->viewport()->rect().contains(
            s.scan.grid()->visualRect(s.scan.index(s_last)));
    };
    fact(!visible(), "far away at first");
    (s.view->*locate)(id);
    fact(s.scan.grid()->currentIndex() == s.scan.index(s_last), "current")(visible(), "on screen")(
        s.view->getSelectedItems(View::ScanSide) == QList<TreeItemData *>{s.card.file(s_last)},
        "selected");
    (s.view->*locate)(-1);
    fact(s.scan.grid()->currentIndex() == s.scan.index(s_last), "no such item");
}

void locateItemByFileId(Stage &s, Facts &fact)
{
    located(s, fact, &View::locateItemByFileId, s.card.file(s_last)->fileId);
}

void locateItemBySecondaryId(Stage &s, Facts &fact)
{
    located(s, fact, &View::locateItemBySecondaryId, s.card.file(s_last)->secondaryId);
}

void setFilterCondition(Stage &s, Facts &fact)
{
    FilterCondition filter;
    s.view->setFilterCondition(&filter);
    s.view->updateScanData(&s.card.nothing);
    fact(isOn(s.scan, "nodatapage"), "a filter that is not active");
    void (*const settings[])(FilterCondition &) = {
        [](FilterCondition &f) { f.minSize = 1; },
        [](FilterCondition &f) { f.maxSize = 0; },
        [](FilterCondition &f) { f.minTime = -2; }, // only -1 is none
        [](FilterCondition &f) { f.maxTime = 1; },
        [](FilterCondition &f) { f.text1 = QStringLiteral("a"); },
        [](FilterCondition &f) { f.text2 = QStringLiteral("a"); },
        [](FilterCondition &f) { f.list1 = QStringList{QString()}; },
        [](FilterCondition &f) { f.list2 = QStringList{QString()}; },
        [](FilterCondition &f) { f.mode = 0; },
    };
    for (const auto set : settings) {
        FilterCondition active;
        set(active);
        s.view->setFilterCondition(&active);
        s.view->updateScanData(&s.card.nothing);
        fact(isOn(s.scan, "nofilterpage"), "one that is");
    }
    s.view->setFilterCondition(&filter);
    const auto hint = [&] {
        s.view->updateSearchData(&s.card.nothing, QStringLiteral("word"));
        return QByteArray(s.search.page()->metaObject()->className());
    };
    fact(hint() == "SearchHintFrame", "the hint of a search");
    filter.aiSearch = true;
    fact(hint() == "AISearchHintFrame", "the hint of an AI search");
    s.view->setFilterCondition(nullptr);
}

void updateThumbnail(Stage &s, Facts &fact)
{
    QPixmap picture(120, 80);
    picture.fill(Qt::red);
    const TreeItemData *item = s.card.file(QStringLiteral("IMG_0002.JPG"));
    s.view->updateThumbnail(item->fileId, picture);
    fact(Report::happens([&] { return cardColour(s.scan, item) == Qt::red; }), "on the card");
}

void updateThumbnailWithPath(Stage &s, Facts &fact)
{
    QPixmap picture(120, 80);
    picture.fill(Qt::blue);
    const TreeItemData *item = s.card.file(QStringLiteral("IMG_0003.JPG"));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1_repaired.JPG").arg(item->fileId));
    fact(picture.save(path, "PNG"), "a file to hand over");
    s.view->updateThumbnailWithPath(item->fileId, path, picture);
    fact(Report::happens([&] { return cardColour(s.scan, item) == Qt::blue; }),
         "on the card")(item->property("previewRepaired").toBool()
                            && item->property("previewRepairedPath").toString() == path,
                        "the record says where the repaired preview is");
}

void setListDelegateFlag(Stage &s, Facts &fact)
{
    s.view->setViewMode(View::ListView);
    const auto location = [&](bool flag) {
        s.view->setListDelegateFlag(flag);
        return s.scan.pictureOf(s.scan.index(s.card.folder->name, Side::PathColumn));
    };
    fact(location(true) != location(false), "a folder's location");
}

void showLoadingPage(Stage &s, Facts &fact)
{
    s.view->showLoadingPage(false);
    fact(isOn(s.scan, "scandatapage"), "not wanted");
    s.view->showLoadingPage(true);
    fact(isOn(s.scan, "loadingpage"), "wanted");
    s.view->setScanState(View::ScanStarted);
    s.view->showLoadingPage(true);
    fact(isOn(s.scan, "scanningpage"), "not while the scan runs");
}

void getSelectedItems(Stage &s, Facts &fact)
{
    const auto clickOn = [](const Side &side, const QString &name, Qt::KeyboardModifiers held) {
        Hand::click(side.view()->viewport(),
                    Hand::placeOn(side.view(), side.index(name), Hand::OnName), Qt::LeftButton,
                    held);
    };
    TreeItemData *first = s.card.file(QStringLiteral("IMG_0001.JPG"));
    TreeItemData *third = s.card.file(QStringLiteral("IMG_0003.JPG"));
    clickOn(s.scan, first->name, {});
    clickOn(s.scan, third->name, Qt::ControlModifier);
    fact(s.view->getSelectedItems(View::ScanSide) == QList<TreeItemData *>{first, third},
         "what was clicked")(s.view->getSelectedItems(0).size() == 2, "0 is the scan side");
    Hand::key(&s.window, Qt::Key_A, Qt::ControlModifier);
    fact(s.view->getSelectedItems(View::ScanSide).size() == s.scan.rows(), "Ctrl+A");
    s.view->setViewMode(View::ListView);
    s.bring(s.search);
    clickOn(s.search, third->name, {});
    fact(s.view->getSelectedItems(View::SearchSide) == QList<TreeItemData *>{third},
         "a row of the search side");
}

struct Operation
{
    const char *name;
    void (*prove)(Stage &, Facts &);
};

#define OPERATION(name)                                                                            \
    {                                                                                              \
#name, name                                                                                \
    }
/// In the order of the interface.
const Operation s_operations[] = {
    OPERATION(updateTheme),
    OPERATION(getScanContentFrame),
    OPERATION(getSearchResultFrame),
    OPERATION(setViewMode),
    OPERATION(setScanState),
    OPERATION(updateScanData),
    OPERATION(updateSearchData),
    OPERATION(updateSearchDataNoKeyword),
    OPERATION(refreshSearchCheckAllState),
    OPERATION(refreshScanCheckState),
    OPERATION(refreshSearchCheckState),
    OPERATION(clearData),
    OPERATION(locateItemByFileId),
    OPERATION(locateItemBySecondaryId),
    OPERATION(setFilterCondition),
    OPERATION(updateThumbnail),
    OPERATION(updateThumbnailWithPath),
    OPERATION(setListDelegateFlag),
    OPERATION(showLoadingPage),
    OPERATION(getSelectedItems),
};
#undef OPERATION

} // namespace

void proveOperations(Stage &stage)
{
    int number = 0;
    for (const Operation &operation : s_operations) {
        Facts facts;
        stage.begin();
        operation.prove(stage, facts);
        Report::tell(
            facts.wrong.isEmpty(),
            QStringLiteral("operation %1 %2").arg(++number).arg(QLatin1String(operation.name)),
            facts.wrong);
    }
}
