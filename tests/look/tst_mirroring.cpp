#include "look/seenwidgets.h"
#include "tools/screenshots/pages.h"
#include "tools/screenshots/stage.h"

#include <QMap>
#include <QTest>

#include <memory>

namespace {

constexpr QSize Window(1100, 720);
constexpr QSize Small(760, 520);

QRect reflected(const QRect &rect, int width)
{
    return {width - rect.x() - rect.width(), rect.y(), rect.width(), rect.height()};
}

/// What is centred in an odd width cannot be reflected to the pixel.
bool sameBut(const QRect &left, const QRect &right, int slack)
{
    return qAbs(left.x() - right.x()) <= slack && left.y() == right.y()
        && qAbs(left.width() - right.width()) <= slack && left.height() == right.height();
}

QString shown(const QRect &rect)
{
    return QStringLiteral("(%1 %2 %3 %4)")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

} // namespace

/// What stands left in English stands right in Arabic. The texts stay English, so that nothing but
/// the direction differs.
class TestMirroring : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void widgets_data();
    void widgets();

private:
    void prepare(const QString &page, Qt::LayoutDirection direction);
    QMap<QString, QRect> seen();

    std::unique_ptr<Stage> m_stage;
};

void TestMirroring::initTestCase()
{
    m_stage = std::make_unique<Stage>(Window);
    QVERIFY(m_stage->load());
    m_stage->setLanguage(QStringLiteral("English"));
}

void TestMirroring::cleanup()
{
    m_stage->setOnDialog({});
    m_stage->window().resize(Window);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestMirroring::prepare(const QString &page, Qt::LayoutDirection direction)
{
    m_stage->tidyUp();
    QApplication::setLayoutDirection(direction);
    Pages::prepare(page, *m_stage);
}

QMap<QString, QRect> TestMirroring::seen()
{
    QMap<QString, QRect> rects;
    const auto found = SeenWidgets::all(&m_stage->window());
    for (const SeenWidget &widget : found)
        rects.insert(widget.path, widget.rect);
    return rects;
}

void TestMirroring::widgets_data()
{
    QTest::addColumn<QString>("page");
    const QStringList pages = Pages::names();
    for (const QString &page : pages) {
        // these open at the mouse, which has no direction
        static const QStringList atMouse{QStringLiteral("menu"), QStringLiteral("text-menu"),
                                         QStringLiteral("tooltip")};
        if (!atMouse.contains(page))
            QTest::newRow(qPrintable(page)) << page;
    }
}

void TestMirroring::widgets()
{
    QFETCH(QString, page);

    m_stage->window().resize(Small); // the cards' own scroll bar is there too
    QMap<QString, QRect> rects;
    m_stage->setOnDialog([&] { rects = seen(); });
    prepare(page, Qt::LeftToRight);
    const QMap<QString, QRect> leftToRight = rects.isEmpty() ? seen() : rects;
    rects.clear();
    prepare(page, Qt::RightToLeft);
    const QMap<QString, QRect> rightToLeft = rects.isEmpty() ? seen() : rects;

    QStringList faults;
    const int width = m_stage->window().width();
    for (auto it = leftToRight.cbegin(); it != leftToRight.cend(); ++it) {
        const QRect wanted = reflected(it.value(), width);
        const QRect got = rightToLeft.value(it.key());
        if (!sameBut(wanted, got, 1))
            faults.append(it.key() + QStringLiteral(": ") + shown(got) + QStringLiteral(", not ")
                          + shown(wanted));
    }
    QCOMPARE(rightToLeft.keys(), leftToRight.keys());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestMirroring)
#include "tst_mirroring.moc"
