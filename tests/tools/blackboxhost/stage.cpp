#include "stage.h"

#include "report.h"

#include <QCoreApplication>
#include <QVBoxLayout>
#include <QWindow>

class Stage::Answers : public QObject
{
    Q_OBJECT

public:
    explicit Answers(View *view)
        : m_view(view)
    {
    }

public slots:
    void thumbnail(TreeItemData *item)
    {
        if (item->fileCategory != 0)
            m_view->updateThumbnail(item->fileId, Card::thumbnailOf(*item));
    }
    void metaData(TreeItemData *item)
    {
        item->metaData = {{QStringLiteral("make"), QStringLiteral("Quarvo")},
                          {QStringLiteral("isoSpeed"), QStringLiteral("200")},
                          {QStringLiteral("Resolution"), QStringLiteral("6000 x 4000")}};
        emit item->metaDataChanged();
    }

private:
    View *m_view;
};

Stage::Stage(QObject *plugin)
    : view(qobject_cast<View *>(plugin))
    , scan(view->getScanContentFrame())
    , search(view->getSearchResultFrame())
    , ear(plugin)
    , m_answers(std::make_unique<Answers>(view))
    , m_plugin(plugin)
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

void Stage::answer()
{
    QObject::connect(m_plugin, SIGNAL(signalSaveThumbnail(TreeItemData *)), m_answers.get(),
                     SLOT(thumbnail(TreeItemData *)), Qt::UniqueConnection);
    QObject::connect(m_plugin, SIGNAL(signalGetMetaData(TreeItemData *)), m_answers.get(),
                     SLOT(metaData(TreeItemData *)), Qt::UniqueConnection);
}

#include "stage.moc"
