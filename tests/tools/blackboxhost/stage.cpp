#include "stage.h"

#include "report.h"

#include <QCoreApplication>
#include <QVBoxLayout>
#include <QWindow>

Stage::Stage(QObject *plugin)
    : view(qobject_cast<View *>(plugin))
    , scan(view->getScanContentFrame())
    , search(view->getSearchResultFrame())
    , ear(plugin)
{
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins({});
    for (const Side &side : {scan, search})
        layout->addWidget(side.frame());
    window.resize(1000, 620);
    bring(scan);
    window.show();
    Report::happens([this] { return window.windowHandle()->isExposed(); });
}

Stage::~Stage()
{
    // the plug-in's, and not to go with the window
    for (const Side &side : {scan, search}) {
        if (side.frame())
            side.frame()->setParent(nullptr);
    }
}

void Stage::bring(const Side &side)
{
    scan.frame()->setVisible(side.frame() == scan.frame());
    search.frame()->setVisible(side.frame() == search.frame());
}

void Stage::begin()
{
    view->clearData(View::BothSides);
    bring(scan);
    card.uncheckAll();
    view->setFilterCondition(nullptr);
    view->updateTheme(LightTheme);
    view->setViewMode(View::GridView);
    view->setScanState(View::ScanStarted);
    view->updateScanData(&card.root);
    view->setScanState(View::ScanFinished);
    view->updateSearchData(&card.root, QStringLiteral("IMG"));
    QCoreApplication::processEvents();
    ear.heard.clear();
}
