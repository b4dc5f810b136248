#include "documents.h"

#include "scenes/scenes.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

static QByteArray travelPdf()
{
    QByteArray content;
    {
        QBuffer buffer(&content);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A5));
        writer.setResolution(144);
        writer.setTitle(QStringLiteral("Three days in the mountains"));
        QPainter painter(&writer);
        const QRectF page(0, 0, writer.width(), writer.height());
        Canvas canvas(QSize(900, 600), 7);
        Scenes::mountains(canvas, 0);
        canvas.develop({});
        painter.drawImage(QRectF(0, 0, page.width(), page.width() * 2 / 3), canvas.image());
        QFont font(QStringLiteral("Open Sans"));
        font.setPointSize(20);
        painter.setFont(font);
        painter.drawText(QRectF(0, page.width() * 0.72, page.width(), 60),
                         QStringLiteral("Three days in the mountains"));
        font.setPointSize(10);
        painter.setFont(font);
        painter.drawText(
            QRectF(0, page.width() * 0.82, page.width(), 500), Qt::TextWordWrap,
            QStringLiteral(
                "Day one. Train to the valley, up to the hut before the light goes.\n\n"
                "Day two. Over the ridge at dawn. Bring the long lens, and the gloves.\n\n"
                "Day three. Down through the birch wood to the lake, and home by boat."));
    }
    // the writer stamps the present moment; a card that is built again should be the same
    const int stamp = content.indexOf("/CreationDate (D:");
    if (stamp >= 0)
        content.replace(content.indexOf("D:", stamp) + 2, 14, "20240516190000");
    return content;
}

static QByteArray packingList()
{
    return QByteArray(
        "Packing list\n============\n\n"
        "[x] camera, two batteries, charger\n[x] memory cards (check them before leaving!)\n"
        "[x] tripod\n[ ] rain cover\n[x] head lamp\n[x] map 1:25000\n[ ] chocolate\n\n"
        "Huts: book the second night before Thursday.\n");
}

static QByteArray expenses()
{
    QByteArray table("date,what,where,amount,currency\n");
    static const char *const s_rows[] = {
        "2024-05-18,train,valley station,48.60,EUR",
        "2024-05-18,supper,lower hut,21.50,EUR",
        "2024-05-19,night,upper hut,36.00,EUR",
        "2024-05-19,tea,upper hut,3.20,EUR",
        "2024-05-20,boat,lake landing,12.00,EUR",
        "2024-05-20,pizza,\"Da Nino, harbour\",34.80,EUR",
        "2024-05-22,museum,old town,16.00,EUR",
        "2024-05-22,ramen,station street,13.90,EUR",
    };
    for (const char *row : s_rows)
        table.append(row).append('\n');
    return table;
}

static QByteArray journalPage()
{
    return QByteArray("<!DOCTYPE html>\n<html lang=\"en\"><head><meta "
                      "charset=\"utf-8\">\n<title>Journal</title>\n"
                      "<style>body{font-family:sans-serif;max-width:40em;margin:3em "
                      "auto;line-height:1.6}</style></head>\n"
                      "<body><h1>Journal</h1>\n<h2>Saturday</h2>\n<p>Clouds below us, sun above. "
                      "We walked until the valley had gone.</p>\n"
                      "<h2>Sunday</h2>\n<p>A blue bird sat on the branch beside the door and let "
                      "us look at it for ten minutes.</p>\n"
                      "<h2>Monday</h2>\n<p>The sea at last. Citrus for breakfast, sand in "
                      "everything.</p>\n</body></html>\n");
}

static QByteArray insurance()
{
    QByteArray text("Equipment list for the insurance\n\n");
    for (int i = 1; i <= 400; ++i)
        text += "Item " + QByteArray::number(i) + ": serial number QV-"
            + QByteArray::number(714025 + i * 9973) + "\n";
    return text;
}

QVector<CardFile> cardDocuments()
{
    const auto at = [](int day, int hour, int minute) {
        return QDateTime(QDate(2024, 5, day), QTime(hour, minute), Qt::UTC);
    };
    return {
        {QStringLiteral("DOCUMENTS/Three days in the mountains.pdf"), at(16, 19, 0), CardFile::Live,
         travelPdf()},
        {QStringLiteral("DOCUMENTS/Packing list.txt"), at(16, 19, 40), CardFile::Deleted,
         packingList()},
        {QStringLiteral("DOCUMENTS/Expenses.csv"), at(23, 20, 14), CardFile::Live, expenses()},
        {QStringLiteral("DOCUMENTS/Journal.html"), at(21, 21, 30), CardFile::Deleted,
         journalPage()},
        {QStringLiteral("MISC/EQUIP.TXT"), at(28, 10, 0), CardFile::Live, insurance()},
    };
}
