#include "cardfixture.h"
#include "common/commonfunction.h"
#include "delegates/cardbackground.h"
#include "delegates/checkboxlook.h"
#include "delegates/devicegrid.h"
#include "delegates/icondelegate.h"
#include "delegates/listdelegate.h"
#include "delegates/recoverabilitylabel.h"
#include "delegates/scaledthumbnails.h"
#include "platform/system/system.h"
#include "support/datarow.h"
#include "support/pixels.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QtTest>

#include <memory>
#include <optional>
#include <thread>

namespace {

constexpr QSize Thumbnail(110, 83);
const QColor PictureColor(200, 30, 40);

QPixmap picture(const QSize &size = Thumbnail, const QColor &color = PictureColor)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return QPixmap::fromImage(image);
}

/// The background as it is meant, band by band in logical coordinates.
void drawBands(QPainter *painter, const QRect &target, const QPixmap &pixmap)
{
    const int height = pixmap.height();
    const qreal s = height / 124.0;
    const int top = qRound(81 * s);
    const int bottom = qRound(7 * s);
    const int side = qRound(4 * s);
    const int width = pixmap.width();
    const int sourceX[] = {0, side, width - side, width};
    const int sourceY[] = {0, top, height - bottom, height};
    const int x[] = {target.x(), target.x() + 4, target.x() + target.width() - 4,
                     target.x() + target.width()};
    const int y[] = {target.y(), target.y() + 81, target.y() + 117, target.y() + 124};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            painter->drawPixmap(
                QRect(x[column], y[row], x[column + 1] - x[column], y[row + 1] - y[row]), pixmap,
                QRect(sourceX[column], sourceY[row], sourceX[column + 1] - sourceX[column],
                      sourceY[row + 1] - sourceY[row]));
        }
    }
}

QPixmap backgroundPicture(CardBackground::Look look)
{
    switch (look) {
    case CardBackground::HoverLook:
        return CommonFunction::themePixmap(QStringLiteral("icon_sdcardthum_hover"));
    case CardBackground::SelectedLook:
        return CommonFunction::themePixmap(QStringLiteral("icon_sdcardthum_press"));
    case CardBackground::NormalLook:
        break;
    }
    return CommonFunction::themePixmap(QStringLiteral("icon_sdcardthum_normal"));
}

} // namespace

Q_DECLARE_METATYPE(std::optional<Recoverability>)

class TestCardPainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { ScanPluginPreviewManager::instance()->stop(); }

    void composedIsDrawnInBands_data();
    void composedIsDrawnInBands();
    void paintedAgainIsPaintedAnew_data();
    void paintedAgainIsPaintedAnew();
    void themeThatWasOvertaken();
    void gapBetweenDevicePixels_data()
    {
        addRows<qreal>("scale",
                       {{"125 per cent", 1.25}, {"150 per cent", 1.5}, {"175 per cent", 1.75}});
    }
    void gapBetweenDevicePixels();
    void checkBoxLooks_data();
    void checkBoxLooks();
    void labelByLevel_data();
    void labelByLevel();
    void labelOfNarrowCard();
    void pictureStandsInItsRect_data();
    void pictureStandsInItsRect();
    void badgeOnlyOnThumbnails();
    void hoverVeilsOnlyFiles();
    void keepsSharpPicturesSharp();
    void shearedPainter();
};

void TestCardPainting::initTestCase()
{
    System::registerFontSubstitutes();
    ThemeManager::instance()->setThemeType(LightTheme);
    QVERIFY(!backgroundPicture(CardBackground::NormalLook).isNull());
}

void TestCardPainting::composedIsDrawnInBands_data()
{
    addColumns<int, QRect, qreal, std::optional<Recoverability>>(
        {"look", "cell", "scale", "level"});

    const QRect usual(5, 7, 150, 124);
    const std::optional<Recoverability> none;
    const std::optional<Recoverability> high = Recoverability::High;
    const std::optional<Recoverability> assessing = Recoverability::Assessing;
    QTest::newRow("normal") << 0 << usual << 1.0 << none;
    QTest::newRow("hover") << 1 << usual << 1.0 << high;
    QTest::newRow("selected") << 2 << usual << 1.0 << assessing;
    QTest::newRow("normal, 2x") << 0 << usual << 2.0 << high;
    QTest::newRow("selected, 2x") << 2 << usual << 2.0 << none;
    QTest::newRow("wide") << 2 << QRect(0, 0, 231, 124) << 1.0 << high;
    QTest::newRow("narrow") << 1 << QRect(1, 2, 61, 124) << 2.0 << high;
    QTest::newRow("cell higher than a card") << 2 << QRect(0, 3, 150, 140) << 1.0 << high;
}

void TestCardPainting::composedIsDrawnInBands()
{
    QFETCH(int, look);
    QFETCH(QRect, cell);
    QFETCH(qreal, scale);
    QFETCH(std::optional<Recoverability>, level);
    const QColor base(250, 251, 252);
    RecoverabilityLabel label;
    label.reload();
    const CardLayout layout(cell);
    const auto blank = [&] {
        QImage image(QSize(260, 160) * scale, QImage::Format_RGB32);
        image.fill(base);
        return image;
    };

    QImage expected = blank();
    {
        QPainter painter(&expected);
        painter.scale(scale, scale);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        drawBands(&painter, layout.card, backgroundPicture(CardBackground::NormalLook));
        if (look)
            drawBands(&painter, layout.card, backgroundPicture(CardBackground::Look(look)));
        if (level)
            label.paint(&painter, cell, *level, false);
    }
    QImage composed = blank();
    CardBackground background;
    background.load();
    for (int time = 0; time < 2; ++time) { // composed, and from what was kept
        QPainter painter(&composed);
        painter.scale(scale, scale);
        CardBackground::Card card;
        card.look = CardBackground::Look(look);
        card.label = level;
        background.draw(&painter, DeviceGrid(&painter), layout, base, card, label);
        painter.end();
        QCOMPARE(composed, expected);
    }
}

void TestCardPainting::paintedAgainIsPaintedAnew_data()
{
    addColumns<qreal, THEMETYPE, Qt::LayoutDirection>({"scale", "theme", "direction"});
    QTest::newRow("light") << 1.0 << LightTheme << Qt::LeftToRight;
    QTest::newRow("dark, mirrored") << 1.0 << DarkTheme << Qt::RightToLeft;
    QTest::newRow("between device pixels") << 1.25 << LightTheme << Qt::RightToLeft;
    QTest::newRow("dark, between device pixels") << 1.25 << DarkTheme << Qt::LeftToRight;
    QTest::newRow("dense") << 2.0 << DarkTheme << Qt::RightToLeft;
}

/// Whatever a delegate has kept of earlier cards, elsewhere and in other looks: each is as if it
/// were the first.
void TestCardPainting::paintedAgainIsPaintedAnew()
{
    QFETCH(qreal, scale);
    QFETCH(THEMETYPE, theme);
    QFETCH(Qt::LayoutDirection, direction);
    CardFixture cards;
    ThemeManager::instance()->setThemeType(theme);
    QVector<TreeItemData *> items;
    for (const char *name : {"IMG_0001.JPG", "a name that is far too long for its card.JPG",
                             "夏の夜空.jpg", "صور العطلة 12.jpg", "ปู่ญู่ ภู่ ที่ชื้น.jpg"})
        items.append(cards.add(QString::fromUtf8(name), CardFixture::File, CardFixture::Photo));
    for (int i = 0; i < 2; ++i)
        ScanPluginPreviewManager::instance()->storeThumbnail(items.at(i)->fileId, picture());
    items.append(cards.add(QStringLiteral("a folder with items"), CardFixture::Folder));

    const auto painted = [&](const IconDelegate &delegate, TreeItemData *item, const QPoint &at,
                             QStyle::State state) {
        QStyleOptionViewItem option = CardFixture::option(state);
        option.rect.moveTo(at);
        option.direction = direction;
        QImage image(QSize(260, 160) * scale, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        painter.scale(scale, scale);
        delegate.paint(&painter, option, cards.indexOf(item));
        return image;
    };
    const auto freshDelegate = [&] {
        auto delegate = std::make_unique<IconDelegate>();
        delegate->setPressedIndex(cards.indexOf(items.last()));
        delegate->setAssessmentFinished(true);
        return delegate;
    };
    const auto used = freshDelegate();
    const QSignalSpy asked(used.get(), &IconDelegate::signalGetThumItem);
    for (TreeItemData *item : qAsConst(items)) {
        const QStyleOptionViewItem option = CardFixture::option();
        used->prepareCard(option, option.rect, scale, cards.indexOf(item));
    }
    QCOMPARE(asked.count(), 0); // nobody has seen them yet
    for (int round = 0; round < 3; ++round) {
        for (const QPoint &at : {QPoint(4, 8), QPoint(5, 7)}) {
            for (const QStyle::State state :
                 {QStyle::State(), QStyle::State(QStyle::State_MouseOver),
                  QStyle::State(QStyle::State_Selected)}) {
                for (TreeItemData *item : qAsConst(items)) {
                    item->checkState = round == 1 ? Qt::Checked : Qt::Unchecked;
                    QCOMPARE(painted(*used, item, at, state),
                             painted(*freshDelegate(), item, at, state));
                }
            }
        }
    }
    ThemeManager::instance()->setThemeType(LightTheme);
}

void TestCardPainting::themeThatWasOvertaken()
{
    CardFixture cards;
    const QModelIndex card = cards.indexOf(cards.add(QStringLiteral("IMG_0001.JPG")));
    const IconDelegate icons;
    const ListDelegate rows;
    std::thread([] { ThemeManager::instance()->setThemeType(DarkTheme); }).join();
    ThemeManager::instance()->setThemeType(LightTheme);
    QCoreApplication::processEvents(); // only now they hear of the dark one
    QCOMPARE(CardFixture::paint(icons, card), CardFixture::paint(IconDelegate(), card));
    QCOMPARE(CardFixture::paint(rows, card), CardFixture::paint(ListDelegate(), card));
}

/// Cards that touch leave no seam, and each is one to one what has been composed for its pixels.
void TestCardPainting::gapBetweenDevicePixels()
{
    QFETCH(qreal, scale);
    const QColor base(10, 20, 30);
    QImage image((QSizeF(460, 260) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    CardBackground background; // without pictures: the base alone
    const RecoverabilityLabel label;
    QPainter painter(&image);
    painter.scale(scale, scale);
    const DeviceGrid grid(&painter);
    for (const QPoint &at : {QPoint(3, 5), QPoint(153, 5), QPoint(303, 5), QPoint(153, 129)})
        background.draw(&painter, grid, CardLayout(QRect(at, QSize(150, 124))), base, {}, label);
    painter.end();

    const auto isMixed = [&](QRgb pixel) {
        return pixel != base.rgb() && pixel != QColor(Qt::magenta).rgb();
    };
    QCOMPARE(around(image, isMixed), QRect());
    const QRect row = grid.deviceRect(QRect(3, 5, 450, 124));
    for (int x = row.left(); x <= row.right(); ++x)
        QCOMPARE(QColor(image.pixel(x, row.center().y())), base);
}

void TestCardPainting::checkBoxLooks_data()
{
    addColumns<int, int, int, int, bool, int>(
        {"kind", "count", "own", "parents", "emptyFolderCheckable", "look"});
    const int off = int(CheckBox::Look::Unchecked);
    const int half = int(CheckBox::Look::Partial);
    const int on = int(CheckBox::Look::Checked);
    const int dead = int(CheckBox::Look::Disabled);

    QTest::newRow("file, own state") << 2 << 0 << 2 << 0 << false << on;
    QTest::newRow("file, unknown state") << 2 << 0 << 9 << 0 << false << off;
    QTest::newRow("folder follows parent") << 1 << 4 << 0 << 2 << false << on;
    QTest::newRow("folder follows unchecked parent") << 1 << 4 << 1 << 0 << false << off;
    QTest::newRow("parent is partial") << 1 << 4 << 1 << 1 << false << half;
    QTest::newRow("folder-like follows too") << 0 << 4 << 0 << 2 << false << on;
    QTest::newRow("free checking: own state") << 1 << 4 << 0 << 2 << true << off;
    QTest::newRow("empty folder") << 1 << 0 << 2 << 1 << false << dead;
    QTest::newRow("empty folder, free checking") << 1 << 0 << 2 << 1 << true << on;
    QTest::newRow("unknown count is not empty") << 1 << -1 << 2 << 1 << false << on;
}

void TestCardPainting::checkBoxLooks()
{
    QFETCH(int, kind);
    QFETCH(int, count);
    QFETCH(int, own);
    QFETCH(int, parents);
    QFETCH(bool, emptyFolderCheckable);
    QFETCH(int, look);
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a"), kind);
    item->itemCount = count;
    item->checkState = own;
    cards.root.checkState = parents;

    IconDelegate delegate;
    delegate.setEmptyFolderCheckable(emptyFolderCheckable);
    const QImage image = cards.paint(delegate, cards.indexOf(item));
    CheckBoxPictures pictures;
    pictures.load();
    const QRect box = CardLayout(cards.option().rect).checkBox;
    // the bare card under the box is the same a box's width further right
    QImage expected = image.copy(box.translated(box.width(), 0));
    QPainter(&expected).drawPixmap(0, 0, pictures.picture(CheckBox::Look(look)));
    QCOMPARE(image.copy(box), expected);
}

void TestCardPainting::labelByLevel_data()
{
    addColumns<int, int, bool, bool, QColor>(
        {"kind", "category", "thumbnail", "finished", "background"});
    const QColor high(241, 251, 242);
    const QColor medium(255, 248, 230);
    const QColor assessing(237, 244, 254);

    QTest::newRow("photo with a picture") << 2 << 8 << true << false << high;
    QTest::newRow("photo under assessment") << 2 << 8 << false << false << assessing;
    QTest::newRow("photo without a picture") << 2 << 8 << false << true << medium;
    QTest::newRow("video") << 2 << 3 << false << true << medium;
    QTest::newRow("camera video") << 2 << 4 << false << false << assessing;
    QTest::newRow("audio is not assessed") << 2 << 2 << false << true << high;
    QTest::newRow("document is not assessed") << 2 << 5 << false << false << high;
    QTest::newRow("folder has none") << 1 << 8 << false << true << QColor();
}

void TestCardPainting::labelByLevel()
{
    QFETCH(int, kind);
    QFETCH(int, category);
    QFETCH(bool, thumbnail);
    QFETCH(bool, finished);
    QFETCH(QColor, background);
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a"), kind, category);
    if (thumbnail)
        ScanPluginPreviewManager::instance()->storeThumbnail(item->fileId, picture());
    IconDelegate delegate;
    delegate.setAssessmentFinished(finished);
    const QImage image = cards.paint(delegate, cards.indexOf(item));
    for (const QColor &color :
         {QColor(241, 251, 242), QColor(255, 248, 230), QColor(237, 244, 254)}) {
        const QRect label = around(image.copy(40, 104, 70, 16),
                                   [color](QRgb pixel) { return pixel == color.rgb(); });
        QCOMPARE(!label.isEmpty(), color == background);
    }
}

void TestCardPainting::labelOfNarrowCard()
{
    RecoverabilityLabel label;
    label.reload();
    const QRect cell(10, 10, 30, 124);
    const QRect rect = label.rect(cell, Recoverability::Assessing);
    QCOMPARE(rect, QRect(14, 115, 22, 14));
    QImage image(60, 140, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    label.paint(&painter, cell, Recoverability::Assessing, true);
    painter.end();
    QVERIFY(image.pixel(rect.center()) != qRgb(255, 255, 255));
    // the caption is cut by the rounded corner
    QCOMPARE(image.pixel(rect.topLeft()), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(rect.right() + 1, rect.center().y()), qRgb(255, 255, 255));
}

void TestCardPainting::pictureStandsInItsRect_data()
{
    addColumns<QSize, qreal, QRect>({"size", "pixelRatio", "drawn"});
    QTest::newRow("usual") << Thumbnail << 1.0 << QRect(23, 2, 104, 80);
    QTest::newRow("portrait") << QSize(146, 194) << 1.0 << QRect(46, 2, 57, 80);
    QTest::newRow("double resolution") << QSize(200, 120) << 2.0 << QRect(27, 13, 96, 58);
    QTest::newRow("from the camera") << QSize(3000, 2000) << 1.0 << QRect(15, 2, 119, 80);
    QTest::newRow("a line") << QSize(2000, 1) << 1.0 << QRect();
    QTest::newRow("a pixel") << QSize(1, 1) << 1.0 << QRect();
}

void TestCardPainting::pictureStandsInItsRect()
{
    QFETCH(QSize, size);
    QFETCH(qreal, pixelRatio);
    QFETCH(QRect, drawn);
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a.jpg"), CardFixture::File, CardFixture::Photo);
    QPixmap thumbnail = picture(size);
    thumbnail.setDevicePixelRatio(pixelRatio);
    ScanPluginPreviewManager::instance()->storeThumbnail(item->fileId, thumbnail);
    const IconDelegate delegate;
    for (const int scale : {1, 2}) {
        QImage image = cards.paintWith(delegate, cards.indexOf(item), cards.option(), scale);
        QPainter(&image).fillRect(0, 0, 28 * scale, image.height(), Qt::black); // the check box
        const QRect found = around(image, [](QRgb pixel) { return pixel == PictureColor.rgb(); });
        const QRect visible = drawn & QRect(28, 0, 200, 200);
        QCOMPARE(found, QRect(visible.topLeft() * scale, visible.size() * scale));
    }
}

void TestCardPainting::badgeOnlyOnThumbnails()
{
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a.jpg"), CardFixture::File, CardFixture::Photo);
    const IconDelegate delegate;
    const auto badge = [&] {
        const CardLayout layout(cards.option().rect);
        return cards.paint(delegate, cards.indexOf(item))
            .copy(layout.repairBadge(layout.thumbArea));
    };
    const QImage bareIcon = badge();
    item->setProperty("previewRepaired", true);
    QCOMPARE(badge(), bareIcon);
    ScanPluginPreviewManager::instance()->storeThumbnail(item->fileId, picture());
    const QImage repaired = badge();
    QVERIFY(repaired != bareIcon);
    item->setProperty("previewRepaired", false);
    QVERIFY(badge() != repaired);
}

void TestCardPainting::hoverVeilsOnlyFiles()
{
    CardFixture cards;
    cards.add(QStringLiteral("current"));
    const TreeItemData *file = cards.add(QStringLiteral("a.doc"));
    const TreeItemData *video = cards.add(QStringLiteral("a.mp4"), CardFixture::File, 3);
    const TreeItemData *folder = cards.add(QStringLiteral("b"), CardFixture::Folder);
    IconDelegate delegate;
    delegate.setPressedIndex(cards.model.index(1, 0));
    const auto changes = [&](const TreeItemData *item, const QRect &rect) {
        return cards.paint(delegate, cards.indexOf(item)).copy(rect)
            != cards.paint(delegate, cards.indexOf(item), QStyle::State_MouseOver).copy(rect);
    };
    const QRect button(65, 30, 20, 20);
    QVERIFY(changes(file, button));
    QVERIFY(changes(video, button));
    QVERIFY(!changes(folder, button)); // a folder's icon stays clear
}

void TestCardPainting::keepsSharpPicturesSharp()
{
    // black and white columns, one device pixel each on a 2x screen
    QImage stripes(208, 160, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
        for (int y = 0; y < stripes.height(); ++y)
            stripes.setPixel(x, y, x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    }
    ScaledThumbnails scaled;
    int asked = 0;
    const auto source = [&] {
        ++asked;
        return stripes;
    };
    QCOMPARE(scaled.scaled(1, stripes.size(), source).toImage(), stripes);
    stripes.setDevicePixelRatio(2);
    QCOMPARE(scaled.scaled(2, stripes.size(), source).toImage().pixel(51, 40), qRgb(255, 255, 255));

    const QSize half = stripes.size() / 2; // averaged, not every second column
    const QColor grey(scaled.scaled(1, half, source).toImage().pixel(50, 40));
    QVERIFY(qAbs(grey.red() - 128) < 8);
    scaled.scaled(1, half, source);
    QCOMPARE(asked, 3);

    // on the other thread it becomes the same, and is not asked for again
    scaled.prepare(3, half, stripes);
    const auto empty = [] { return QImage(); };
    QTRY_VERIFY(!scaled.scaled(3, half, empty).isNull());
    QCOMPARE(scaled.scaled(3, half, empty).toImage(), scaled.scaled(1, half, empty).toImage());
}

void TestCardPainting::shearedPainter()
{
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a.jpg"), CardFixture::File, CardFixture::Photo);
    ScanPluginPreviewManager::instance()->storeThumbnail(item->fileId, picture());
    const IconDelegate delegate;
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(150, 150);
    painter.rotate(90);
    delegate.paint(&painter, cards.option(), cards.indexOf(item));
    painter.end();
    QCOMPARE(QColor(image.pixel(150 - 40, 150 + 75)), PictureColor);
}

QTEST_MAIN(TestCardPainting)
#include "tst_cardpainting.moc"
