#include "host/app/pathpattern.h"

PathPattern::PathPattern(const QString &wildcard)
{
    QString expression = QRegularExpression::escape(wildcard);
    expression.replace(QLatin1String("\\*"), QLatin1String(".*"));
    expression.replace(QLatin1String("\\?"), QLatin1String("."));
    m_expression.setPattern(QRegularExpression::anchoredPattern(expression));
    m_expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption
                                   | QRegularExpression::DotMatchesEverythingOption);
}
