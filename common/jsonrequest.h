#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

/// A compact JSON object whose fields keep the order in which they were added; QJsonObject sorts
/// them by name.
class JsonRequest
{
public:
    void add(const char *field, const QString &text) { addValue(field, QJsonValue(text)); }
    void add(const char *field, double number) { addValue(field, QJsonValue(number)); }
    // Qt would write a whole number by way of a double, which does not hold all of them
    void add(const char *field, qint64 number) { addText(field, QByteArray::number(number)); }
    void add(const char *field, int number) { addText(field, QByteArray::number(number)); }

    QByteArray toJson() const { return '{' + m_fields + '}'; }

private:
    void addValue(const char *field, const QJsonValue &value)
    {
        // the text of a one-element array without its brackets is the element's, escaped
        const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        addText(field, array.mid(1, array.size() - 2));
    }
    void addText(const char *field, const QByteArray &json)
    {
        m_fields += m_fields.isEmpty() ? "\"" : ",\"";
        m_fields += field;
        m_fields += "\":";
        m_fields += json;
    }

    QByteArray m_fields;
};
