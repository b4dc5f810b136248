#include "look/seenwidgets.h"
#include "tools/screenshots/pages.h"
#include "tools/screenshots/stage.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTableView>
#include <QTest>
#include <QTextDocument>

#include <memory>

/// Finds texts that do not fit their place, in every language.
class TestTextFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyLanguage_data();
    void everyLanguage();

private:
    void lookAtPage(const QString &page);
    void lookAtWidget(const SeenWidget &seen);
    void lookAtHeader();
    void complain(const QString &where, const QString &text, int needed, int given);

    std::unique_ptr<Stage> m_stage;
    QString m_page;
    QStringList m_faults;
    int m_texts = 0;
};

void TestTextFit::initTestCase()
{
    m_stage = std::make_unique<Stage>(QSize(640, 480));
    QVERIFY(m_stage->load());
}

void TestTextFit::everyLanguage_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Languages::names();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void TestTextFit::complain(const QString &where, const QString &text, int needed, int given)
{
    m_faults.append(QStringLiteral("%1 %2x%3 %4: '%5' needs %6, has %7")
                        .arg(m_page)
                        .arg(m_stage->window().width())
                        .arg(m_stage->window().height())
                        .arg(where, text)
                        .arg(needed)
                        .arg(given));
}

void TestTextFit::lookAtWidget(const SeenWidget &seen)
{
    const QWidget *widget = seen.widget;
    const auto *label = qobject_cast<const QLabel *>(widget);
    const auto *button = qobject_cast<const QPushButton *>(widget);
    const QWidget *parent = widget->parentWidget();
    m_texts += (label && !label->text().isEmpty()) || (button && !button->text().isEmpty());
    const bool scrolls = parent && parent->objectName() == QLatin1String("qt_scrollarea_viewport");
    if ((label || button) && parent && !widget->isWindow() && !scrolls
        && !parent->rect().contains(widget->geometry()))
        complain(seen.widget->objectName(), QStringLiteral("sticks out"),
                 widget->geometry().right(), parent->width());
    if (button && !button->text().isEmpty() && button->sizeHint().width() > button->width())
        complain(seen.widget->objectName(), button->text(), button->sizeHint().width(),
                 button->width());
    if (!label || label->text().isEmpty())
        return;
    if (label->wordWrap()) {
        const int needed = label->heightForWidth(label->width());
        if (needed > label->height())
            complain(seen.widget->objectName(), label->text(), needed, label->height());
        return;
    }
    // a label that cuts keeps the whole text; a value is as long as somebody's file name
    const QString whole = label->property("tooltipkey").toString();
    if (label->objectName() == QLatin1String("labValue")
        || label->objectName() == QLatin1String("namelabel"))
        return;
    if (!whole.isEmpty() && whole != label->text())
        complain(seen.widget->objectName(), whole, label->fontMetrics().horizontalAdvance(whole),
                 label->width());
    else if (label->sizeHint().width() > label->width())
        complain(seen.widget->objectName(), label->text(), label->sizeHint().width(),
                 label->width());
    constexpr int Leading = 1; // a stand-in font may ask for more room than its letters take
    if (label->fontMetrics().height() > label->height() + Leading)
        complain(seen.widget->objectName(), label->text(), label->fontMetrics().height(),
                 label->height());
}

void TestTextFit::lookAtHeader()
{
    const auto *table = qobject_cast<QTableView *>(m_stage->items());
    if (!table)
        return;
    const QHeaderView *header = table->horizontalHeader();
    for (int section = 0; section < header->count(); ++section) {
        if (!header->isSectionHidden(section)
            && header->sectionSizeHint(section) > header->sectionSize(section))
            complain(QStringLiteral("header"),
                     header->model()->headerData(section, Qt::Horizontal).toString(),
                     header->sectionSizeHint(section), header->sectionSize(section));
    }
}

void TestTextFit::lookAtPage(const QString &page)
{
    m_page = page;
    const auto lookAtAll = [this] {
        const auto found = SeenWidgets::all(&m_stage->window());
        for (const SeenWidget &seen : found)
            lookAtWidget(seen);
    };
    for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
        m_stage->window().resize(size);
        m_stage->setOnDialog(lookAtAll);
        Pages::prepare(page, *m_stage);
        lookAtAll();
        lookAtHeader();
    }
}

void TestTextFit::everyLanguage()
{
    QFETCH(QString, language);

    m_faults.clear();
    m_texts = 0;
    m_stage->setLanguage(language);
    // the texts of others once more
    static const QStringList again{QStringLiteral("grid-kinds"),    QStringLiteral("grid-search"),
                                   QStringLiteral("grid-keyboard"), QStringLiteral("list-keyboard"),
                                   QStringLiteral("list-links"),    QStringLiteral("tooltip")};
    const QStringList pages = Pages::names();
    for (const QString &page : pages) {
        if (!again.contains(page))
            lookAtPage(page);
    }
    QVERIFY(m_texts > 100);
    for (const QString &fault : qAsConst(m_faults))
        qWarning("%s", qPrintable(fault)); // all of them: a failure is cut
    QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.value(0)));
}

QTEST_MAIN(TestTextFit)
#include "tst_textfit.moc"
