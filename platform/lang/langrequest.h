#pragma once

#include <QJsonObject>
#include <QLocale>
#include <QString>

/// One request of the language library, read and checked field by field. The first fault is kept:
/// after it every field reads as its empty value, and error() says what is wrong.
class LangRequest
{
public:
    /// \a text: a JSON object in UTF-8, or null.
    explicit LangRequest(const char *text);

    bool isValid() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }

    QString text(const char *field);
    double number(const char *field);
    qint64 wholeNumber(const char *field);
    qint64 wholeNumber(const char *field, qint64 smallest, qint64 largest);
    /// The locale that "lang" names; English where nobody knows the language.
    QLocale locale();
    /// What locale() could not find; empty when it found it.
    QString unknownLanguage() const { return m_unknownLanguage; }

    static QLocale localeOf(const QString &lang, bool *known);

private:
    QJsonValue value(const char *field);
    void fail(const QString &message);

    QJsonObject m_fields;
    QString m_error;
    QString m_unknownLanguage;
};
