#include "gallery.h"

#include <QDir>
#include <QSaveFile>
#include <QTextStream>

bool Gallery::write(const Wishes &wishes)
{
    QSaveFile file(QDir(wishes.folder).filePath(QStringLiteral("index.html")));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << "<!doctype html>\n<meta charset=utf-8>\n<title>Screenshots</title>\n<style>\n"
           "body { font: 14px sans-serif; background: #888; color: #fff; margin: 24px }\n"
           "nav a { color: #fff; margin-right: 12px }\n"
           "figure { display: inline-block; margin: 0 8px 8px 0 }\n"
           "img { width: 360px; display: block }\n"
           "figcaption { font-size: 12px }\n"
           "</style>\n<nav>";
    for (const QString &page : wishes.pages)
        out << "<a href='#" << page << "'>" << page << "</a>";
    out << "</nav>\n";
    for (const QString &page : wishes.pages) {
        out << "<h2 id='" << page << "'>" << page << "</h2>\n";
        for (const QString &language : wishes.languages) {
            out << "<h3>" << language << "</h3>\n";
            for (const QString &theme : wishes.themes) {
                for (const QString &scale : wishes.scales) {
                    const QString name = wishes.fileName(page, language, theme, scale);
                    out << "<figure><a href='" << name << "'><img loading=lazy src='" << name
                        << "'></a><figcaption>" << theme << ' ' << scale
                        << "x</figcaption></figure>\n";
                }
            }
        }
    }
    out.flush();
    return file.commit();
}
