#include "hand.h"
#include "proofs.h"
#include "report.h"
#include "stage.h"

#include <QApplication>
#include <QCursor>

namespace {

const QString s_photo = QStringLiteral("IMG_0002.JPG");

void clickOn(const Side &side, const QString &name, Hand::Place place)
{
    Hand::click(side.view()->viewport(), Hand::placeOn(side.view(), side.index(name), place));
}

void openByDoubleClick(const Side &side, const QString &name)
{
    Hand::doubleClick(side.view()->viewport(),
                      Hand::placeOn(side.view(), side.index(name), Hand::OnName));
}

void chooseInMenu(const Side &side, const char *entry)
{
    QWidget *viewport = side.view()->viewport();
    const QPoint place = Hand::placeOn(side.view(), side.index(s_photo), Hand::OnName);
    QCursor::setPos(viewport->mapToGlobal(place));
    Hand::click(viewport, place, Qt::RightButton);
    if (Report::happens([] { return QApplication::activePopupWidget(); }))
        Hand::click(QApplication::activePopupWidget()->findChild<QWidget *>(QLatin1String(entry)));
}

struct Cause
{
    const char *signal;
    const char *arguments;
    const char *how;
    void (*act)(Stage &);
};

const char s_treeItemCheck[] = "signalTreeItemCheck(TreeItemData*,Qt::CheckState)";
const char s_fileOpened[] = "signalFileDoubleClicked(TreeItemData*,QString)";

/// In the order of the declarations, each signal at least once.
const Cause s_causes[] = {
    {s_treeItemCheck, "IMG_0002.JPG 2", "a click on a card's box",
     [](Stage &s) { clickOn(s.scan, s_photo, Hand::OnCheckBox); }},
    {s_treeItemCheck, "card 2", "a click on select-all",
     [](Stage &s) { Hand::click(s.scan.child("allCheckButton")); }},
    {"signalSearchItemDataCheck(TreeItemData*,Qt::CheckState)", "IMG_0002.JPG 2",
     "a click on a box of the search side",
     [](Stage &s) {
         s.bring(s.search);
         clickOn(s.search, s_photo, Hand::OnCheckBox);
     }},
    {"signalSearchSelectAllChecked(Qt::CheckState)", "2", "select-all of the search side",
     [](Stage &s) {
         s.bring(s.search);
         Hand::click(s.search.child("allCheckButton"));
     }},
    {"signalFolderDoubleClicked(TreeItemData*)", "DCIM", "a double-click on a folder",
     [](Stage &s) { openByDoubleClick(s.scan, s.card.folder->name); }},
    {s_fileOpened, "IMG_0002.JPG double_click", "a double-click on a file",
     [](Stage &s) { openByDoubleClick(s.scan, s_photo); }},
    {s_fileOpened, "IMG_0002.JPG preview_btn", "a click on a card's preview button",
     [](Stage &s) { clickOn(s.scan, s_photo, Hand::OnPreview); }},
    {s_fileOpened, "IMG_0002.JPG right_click_menu", "\"preview\" in the context menu",
     [](Stage &s) { chooseInMenu(s.scan, "Preview"); }},
    {"signalSortClicked(TreeItemData*,HeaderViewSortType)", "card 3", "a click on \"size\"",
     [](Stage &s) { Hand::click(s.scan.child("sizeButton")); }},
    {"signalLocateFile(TreeItemData*)", "IMG_0002.JPG", "a click on a row's location",
     [](Stage &s) {
         s.view->setViewMode(View::ListView);
         s.bring(s.search);
         const QRect cell = s.search.view()->visualRect(s.search.index(s_photo, Side::PathColumn));
         Hand::click(s.search.view()->viewport(), {cell.left() + 20, cell.center().y()});
     }},
    {"signalSaveThumbnail(TreeItemData*)", "IMG_0002.JPG", "a card without a thumbnail",
     [](Stage &s) { s.window.update(); }},
    {"signalGetMetaData(TreeItemData*)", "IMG_0002.JPG", "a row chosen beside the detail pane",
     [](Stage &s) {
         s.view->setViewMode(View::ListWithDetailView);
         clickOn(s.scan, s_photo, Hand::OnName);
     }},
    {"signalRightMenuRecover(TreeItemData*)", "IMG_0002.JPG", "\"recover\" in the context menu",
     [](Stage &s) { chooseInMenu(s.scan, "Recover"); }},
    // on a card that no click has been on: one card's tooltips keep a distance of a second
    {"signalShowTooltip(QString)", "IMG_0003.JPG", "the mouse over a card",
     [](Stage &s) {
         Hand::hover(s.scan.view()->viewport(),
                     Hand::placeOn(s.scan.view(), s.scan.index(QStringLiteral("IMG_0003.JPG")),
                                   Hand::OnPreview));
     }},
};

} // namespace

void proveSignals(Stage &stage)
{
    QStringList caused;
    for (const Cause &cause : s_causes) {
        stage.begin();
        cause.act(stage);
        const bool heard = Report::happens(
            [&] { return stage.ear.hasHeard(cause.signal, QLatin1String(cause.arguments)); });
        Report::tell(heard,
                     QStringLiteral("signal %1 by %2")
                         .arg(QString::fromLatin1(cause.signal).section(QLatin1Char('('), 0, 0),
                              QLatin1String(cause.how)),
                     heard ? QString::fromLatin1(cause.arguments)
                           : QStringLiteral("last heard ")
                             + stage.ear.heard.value(stage.ear.heard.size() - 1));
        if (!caused.contains(QLatin1String(cause.signal)))
            caused << QLatin1String(cause.signal);
    }
    Report::tell(caused == stage.ear.signatures() && caused.size() == 11,
                 "eleven signals in their order", stage.ear.signatures().join(QLatin1Char(' ')));
}
