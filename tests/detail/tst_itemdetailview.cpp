#include "detail/chipinfoitem.h"
#include "detail/datainfoitem.h"
#include "detail/elidedlabel.h"
#include "detail/itemdetailview.h"
#include "popups/previewframe.h"
#include "support/datarow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using Pairs = QVector<QPair<QString, QString>>;

class TestItemDetailView : public QObject
{
    Q_OBJECT

private slots:
    void metadataRows_data();
    void metadataRows();
    void statusAndPath_data();
    void statusAndPath();
    void tagsInTheirOrder();
    void requestsOnlyWhereTheUserRests();
    void answerFillsTheShownItemOnly();
    void folderShowsCountAndSize();
    void deathClearsThePane();
    void longTextsAreCutAndCopiedWhole();
    void chipsWrap();
    void mouseOverThePictureFindsThePreviewButton();

private:
    static std::unique_ptr<TreeItemData> photo(qint64 id)
    {
        auto item = std::make_unique<TreeItemData>();
        item->kind = 2;
        item->fileId = 77000000 + id;
        item->fileCategory = 8;
        item->name = QStringLiteral("P%1.jpg").arg(id);
        item->extension = QStringLiteral("jpg");
        item->path = QStringLiteral("/DCIM/100");
        item->volumeRoot = QStringLiteral("E:");
        return item;
    }
    /// Title=value of the rows that are shown, from the top.
    static QStringList rows(const ItemDetailView &pane)
    {
        QStringList texts;
        const auto found = pane.findChildren<DataInfoItem *>();
        for (const DataInfoItem *row : found) {
            if (!row->isHidden())
                texts.append(row->title() + QLatin1Char('=') + row->value());
        }
        return texts;
    }
};

void TestItemDetailView::metadataRows_data()
{
    addColumns<Pairs, QStringList>({"metaData", "expected"});
    QTest::newRow("none") << Pairs{} << QStringList{};
    QTest::newRow("settled order") << Pairs{{"fNumber", "2.8"}, {"model", "X1"}, {"make", "Canon"}}
                                   << QStringList{"camera_brand=Canon", "model=X1", "f_number=2.8"};
    QTest::newRow("rows of their own")
        << Pairs{{"Resolution", "10 x 10"}, {"aiSceneTag", "beach"}} << QStringList{};
    QTest::newRow("unknown key, no title") << Pairs{{"lens", "50mm"}} << QStringList{"=50mm"};
    QTest::newRow("empty key or value") << Pairs{{"", "x"}, {"make", ""}} << QStringList{};
    addRow("several lines and binary",
           Pairs{{"software", QString("a\nb") + QChar(0) + QChar(7) + "c"}},
           QStringList{"software=a b c"});
    Pairs many;
    for (int i = 0; i < 5000; ++i)
        many.append({QStringLiteral("k%1").arg(i), QStringLiteral("v")});
    QTest::newRow("absurdly many") << many << QStringList(QVector<QString>(64, "=v").toList());
}

void TestItemDetailView::metadataRows()
{
    QFETCH(Pairs, metaData);
    QFETCH(QStringList, expected);
    const auto item = photo(1);
    item->metaData = metaData;
    ItemDetailView pane;
    pane.setItem(item.get());
    QCOMPARE(rows(pane).mid(4), expected);
}

void TestItemDetailView::statusAndPath_data()
{
    addColumns<bool, QString, QString, QStringList>({"exists", "path", "volumeRoot", "expected"});
    addRow("on the medium", true, "/DCIM/100",
           "E:", QStringList{"path=E:\\DCIM\\100", "file_status=filter_bar_widget_existing_files"});
    addRow("deleted, no location", false, "", "",
           QStringList{"path=--", "file_status=filter_bar_widget_delete_files"});
}

void TestItemDetailView::statusAndPath()
{
    QFETCH(bool, exists);
    QFETCH(QString, path);
    QFETCH(QString, volumeRoot);
    QFETCH(QStringList, expected);
    const auto item = photo(1);
    item->exists = exists;
    item->path = path;
    item->volumeRoot = volumeRoot;
    ItemDetailView pane;
    QSignalSpy clicked(&pane, &ItemDetailView::signalPathClicked);
    pane.setItem(item.get());
    QCOMPARE(rows(pane).mid(0, 2), expected);
    pane.show();
    auto *value = pane.findChild<DataInfoItem *>()->findChild<ElidedLabel *>("labValue");
    QTest::mouseClick(value, Qt::LeftButton);
    QCOMPARE(clicked.count(), path.isEmpty() ? 0 : 1);
}

void TestItemDetailView::tagsInTheirOrder()
{
    const auto item = photo(1);
    ItemDetailView pane;
    pane.setItem(item.get());
    auto *tags = pane.findChild<ChipInfoItem *>();
    QVERIFY(tags->isHidden());
    item->aiScenes = QStringList{"wedding", "nobody knows", "mountain", "document"};
    pane.refresh();
    QVERIFY(!tags->isHidden());
    QCOMPARE(tags->chips(),
             (QStringList{"ai_tags_wedding_dress", "ai_tags_landscape", "ai_tags_paper_document"}));
}

void TestItemDetailView::requestsOnlyWhereTheUserRests()
{
    std::vector<std::unique_ptr<TreeItemData>> items;
    for (int i = 0; i < 50; ++i)
        items.push_back(photo(i));
    ItemDetailView pane;
    pane.show();
    QSignalSpy metadata(&pane, &ItemDetailView::signalGetMetaData);
    QSignalSpy pictures(&pane, &ItemDetailView::signalGetThumPixmap);
    for (const auto &item : items)
        pane.setItem(item.get());
    QTRY_COMPARE(metadata.count(), 1);
    QCOMPARE(pictures.count(), 1);
    QCOMPARE(metadata.first().first().value<TreeItemData *>(), items.back().get());
}

void TestItemDetailView::answerFillsTheShownItemOnly()
{
    const auto first = photo(1);
    const auto second = photo(2);
    ItemDetailView pane;
    pane.setItem(first.get());
    pane.setItem(second.get());
    const QStringList before = rows(pane);
    first->metaData = Pairs{{"make", "Canon"}};
    emit first->metaDataChanged();
    QCOMPARE(rows(pane), before);
    second->metaData = Pairs{{"Resolution", "600 x 400"}};
    emit second->metaDataChanged();
    QVERIFY(rows(pane).contains("resolution=600 x 400"));
}

void TestItemDetailView::folderShowsCountAndSize()
{
    TreeItemData folder;
    folder.kind = 1;
    folder.name = "DCIM";
    folder.itemCount = 12;
    folder.folderSize = 2048;
    ItemDetailView pane;
    pane.setItem(&folder);
    QVERIFY(pane.findChild<ElidedLabel *>("namelabel")->fullText().contains("12"));
    QVERIFY(rows(pane).filter("size=").first().contains("2"));
    QVERIFY(!pane.findChild<QLabel *>("iconlabel")->pixmap(Qt::ReturnByValue).isNull());
}

void TestItemDetailView::deathClearsThePane()
{
    auto item = photo(1);
    ItemDetailView pane;
    pane.show();
    QSignalSpy opened(&pane, &ItemDetailView::signalClickedOpen);
    pane.setItem(item.get());
    auto *button = pane.findChild<QPushButton *>("openButton");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(opened.count(), 1);
    item.reset();
    QVERIFY(!button->isVisible());
    button->click();
    QCOMPARE(opened.count(), 1);
    pane.refresh();
    pane.updateTheme();
    pane.grab();
}

void TestItemDetailView::longTextsAreCutAndCopiedWhole()
{
    ElidedLabel label;
    label.resize(80, 20);
    const QString text = QStringLiteral("a name that is a good deal longer than eighty pixels");
    label.setFullText(text);
    label.show();
    QVERIFY(label.text().size() < text.size());
    QCOMPARE(label.toolTip(), text);
    QCOMPARE(label.property("tooltipkey").toString(), text);
    QTest::keySequence(&label, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
    label.resize(2000, 20);
    QCOMPARE(label.text(), text);
    QVERIFY(label.toolTip().isEmpty());
    label.setFullText(QString(5000000, 'x'));
    QVERIFY(label.text().size() < 2000);
}

void TestItemDetailView::chipsWrap()
{
    ChipInfoItem chips;
    chips.setFixedWidth(220);
    chips.setChips({"one"});
    chips.show();
    const int oneLine = chips.heightForWidth(220);
    chips.setChips({"a longer tag", "another longer tag", "a third one", "four", "five"});
    QVERIFY(chips.heightForWidth(220) > oneLine);
    QCoreApplication::processEvents();
    const QRect room = chips.findChild<QFrame *>("chipContainerFrame")->rect();
    const auto labels = chips.findChildren<QLabel *>();
    for (const QLabel *chip : labels) {
        if (chip->property("chipLabel").toBool())
            QVERIFY(room.contains(chip->geometry()));
    }
}

void TestItemDetailView::mouseOverThePictureFindsThePreviewButton()
{
    ItemDetailView pane;
    const auto item = photo(1);
    pane.setItem(item.get());
    pane.resize(280, 600);
    pane.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pane));
    QSignalSpy opened(&pane, &ItemDetailView::signalClickedOpen);
    auto *picture = pane.findChild<QFrame *>(QStringLiteral("frameIconBg"));
    auto *preview = pane.findChild<PreviewFrame *>();
    const auto move = [&](QEvent::Type type) {
        QEvent event(type);
        QCoreApplication::sendEvent(picture, &event);
    };
    QVERIFY(!preview->isVisible());
    move(QEvent::Enter);
    QVERIFY(preview->isVisible());
    QCOMPARE(preview->geometry(), picture->rect());
    QTest::mouseClick(preview->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(opened.size(), 1);
    move(QEvent::Leave);
    QVERIFY(!preview->isVisible());
    TreeItemData folder;
    folder.kind = 1;
    pane.setItem(&folder);
    move(QEvent::Enter);
    QVERIFY(!preview->isVisible());
}

QTEST_MAIN(TestItemDetailView)
#include "tst_itemdetailview.moc"
