#pragma once

#include <QRegularExpression>
#include <QString>

/// A wildcard over whole paths: "*" stands for anything, folders too, "?" for one character. Letter
/// case does not matter, as it does not on a card.
class PathPattern
{
public:
    explicit PathPattern(const QString &wildcard);
    bool matches(const QString &path) const { return m_expression.match(path).hasMatch(); }

private:
    QRegularExpression m_expression;
};
