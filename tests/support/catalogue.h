#pragma once

#include <QFile>
#include <QMap>
#include <QStringList>
#include <QXmlStreamReader>

/// The translation of a text: one form, or one for each plural.
struct CatalogueText
{
    QStringList forms;
    bool isFinished = true;
};

/// What a Linguist file holds, by "context/source text".
struct Catalogue
{
    QString language, error;
    QMap<QString, CatalogueText> texts;

    static Catalogue read(const QString &path);
};

inline Catalogue Catalogue::read(const QString &path)
{
    Catalogue catalogue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        catalogue.error = path + QLatin1String(": ") + file.errorString();
        return catalogue;
    }
    QXmlStreamReader xml(&file);
    QString context, id;
    CatalogueText text;
    bool hasPlurals = false;
    while (!xml.atEnd()) {
        xml.readNext();
        const QStringRef name = xml.name();
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.isEndElement() && name == QLatin1String("message")) {
            catalogue.texts.insert(id, text);
        } else if (!xml.isStartElement()) {
            continue;
        } else if (name == QLatin1String("TS")) {
            catalogue.language = attributes.value(QLatin1String("language")).toString();
        } else if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("message")) {
            text = CatalogueText();
            hasPlurals = attributes.hasAttribute(QLatin1String("numerus"));
        } else if (name == QLatin1String("source")) {
            id = context + QLatin1Char('/') + xml.readElementText();
        } else if (name == QLatin1String("comment")) {
            id += QLatin1String(" (") + xml.readElementText() + QLatin1Char(')');
        } else if (name == QLatin1String("translation")) {
            text.isFinished = !attributes.hasAttribute(QLatin1String("type"));
            if (!hasPlurals)
                text.forms.append(xml.readElementText());
        } else if (name == QLatin1String("numerusform")) {
            text.forms.append(xml.readElementText());
        }
    }
    if (xml.hasError())
        catalogue.error = path + QLatin1String(": ") + xml.errorString();
    return catalogue;
}
