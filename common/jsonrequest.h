#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

/// A compact JSON object whose fields keep the order in which they were added; QJsonObject sorts
/// them by name.
class JsonRequest {
public:
    void add(const char *field, const QJsonValue &value)
    {
        // the text of a one-element array without its brackets is the element's, escaped
        const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        m_fields += m_fields.isEmpty() ? "\"" : ",\"";
        m_fields += field;
        m_fields += "\":";
        m_fields += array.mid(1, array.size() - 2);
    }
    QByteArray toJson() const { return '{' + m_fields + '}'; }

private:
    QByteArray m_fields;
};
