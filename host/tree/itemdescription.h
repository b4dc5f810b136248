#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

struct ItemRecord;

/// What a description such as "photos May 2024 beach" asks for: each word has to fit, by the kind
/// of file, its type, the year or month of its date, its size ("5mb": about that, ">5mb", "<5mb"),
/// a scene that is known of it, or its name. Words that join others, such as "from", count for
/// nothing. Understands the language of the user interface, and English.
class ItemDescription
{
public:
    explicit ItemDescription(const QString &text);

    /// No word says anything; nothing matches then.
    bool isEmpty() const { return m_words.isEmpty(); }
    bool matches(const ItemRecord &record) const;

private:
    struct Word
    {
        QString text;
        QVector<int> rootTypes; ///< kinds of files that are called so
        int year = 0;
        int month = 0;
        qint64 leastSize = -1; ///< below 0: says nothing of a size
        qint64 largestSize = -1;

        bool fits(const ItemRecord &record) const;
    };

    static Word understood(const QString &text);

    QVector<Word> m_words;
};
